// The grid list: 10,000 rows of 8 columns filled at once (as the lists fill it) and cell by cell
// (as a typed row is), then the list at its largest, 32,751 rows, paged from top to bottom with
// PgDn. Prints the fill times and the time of a page step, and whether an accessibility bridge
// was listening: run it under a display with QT_QPA_PLATFORM=xcb and
// QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 (in dbus-run-session) to see what a screen reader costs.

#include "controls/DcList.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

QStringList rowCells(int i)
{
    return { QStringLiteral("16.11.2026"), QStringLiteral("2-SMM"), QString::number(i),
        QStringLiteral("Danışmanlık ücreti"), QStringLiteral("B"), QString::number(1000 + i % 977), QStringLiteral("0"),
        QString::number(i * 12.5, 'f', 2) };
}

// Milliseconds to fill the emptied list with rows, at once or cell by cell, until shown.
double fill(DcList &list, int rows, bool atOnce)
{
    list.Clear();
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    if (atOnce) {
        std::vector<QStringList> cells;
        for (int i = 0; i < rows; ++i)
            cells.push_back(rowCells(i));
        list.AddCaptionRows(std::move(cells));
    } else {
        for (int i = 0; i < rows; ++i) {
            const int row = list.CreateNewCaption();
            const QStringList cells = rowCells(i);
            for (int c = 0; c < cells.size(); ++c)
                list.setCaption(row, c, cells[c]);
        }
    }
    QCoreApplication::processEvents();
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DcList list;
    list.resize(900, 600);
    list.Add(QStringLiteral("t"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 4);
    list.Add(QStringLiteral("s"), QStringLiteral("islem"), QStringLiteral("İşlem"), 80, 10);
    list.Add(QStringLiteral("a"), QStringLiteral("evrak"), QStringLiteral("Evrak"), 80, 8);
    list.Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 200, 40);
    list.Add(QStringLiteral("s"), QStringLiteral("ba"), QStringLiteral("B/A"), 35, 1, 6);
    list.Add(QStringLiteral("n"), QStringLiteral("borc"), QStringLiteral("Borç"), 110, 1e15, 2, 2);
    list.Add(QStringLiteral("n"), QStringLiteral("alacak"), QStringLiteral("Alacak"), 110, 1e15, 2, 2);
    list.Add(QStringLiteral("b"), QStringLiteral("bakiye"), QStringLiteral("Bakiye"), 110, 1e15, 0, 2);
    list.setZebra(true);
    list.show();
    QCoreApplication::processEvents();

    const double atOnce = fill(list, 10000, true);
    const double byCell = fill(list, 10000, false);
    const double full = fill(list, 32751, true);

    list.ChngSat(0);
    list.view()->setFocus();
    std::vector<double> steps;
    QElapsedTimer timer;
    while (list.CurSat() < list.ListCount() - 1) {
        timer.start();
        QKeyEvent pageDown(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
        QCoreApplication::sendEvent(list.view(), &pageDown);
        list.view()->viewport()->repaint();
        steps.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(steps.begin(), steps.end());
    std::printf("%-44s %s\n", "accessibility bridge listening", QAccessible::isActive() ? "yes" : "no");
    std::printf("%-44s %9.1f ms\n", "fill 10,000 rows x 8 columns at once", atOnce);
    std::printf("%-44s %9.1f ms\n", "fill 10,000 rows x 8 columns cell by cell", byCell);
    std::printf("%-44s %9.1f ms %12s\n", "fill 32,751 rows x 8 columns at once", full, "<= 150 ms");
    std::printf("%-44s %9.2f ms %12s\n", "PgDn page step, median (with repaint)", steps[steps.size() / 2], "<= 5 ms");
    std::printf("%-44s %9.2f ms %12s\n", "PgDn page step, slowest", steps.back(), "");
    std::printf("%-44s %9zu\n", "page steps", steps.size());
    return 0;
}
