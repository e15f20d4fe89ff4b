// The grid list at its largest: 32,751 rows of 8 columns filled the way the screens fill it,
// then paged from top to bottom with PgDn. Prints the fill time and the time of a page step.

#include "controls/DcList.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int argc, char *argv[])
{
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

    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 32751; ++i) {
        const int row = list.CreateNewCaption();
        list.setCaption(row, 0, QStringLiteral("16.11.2026"));
        list.setCaption(row, 1, QStringLiteral("2-SMM"));
        list.setCaption(row, 2, QString::number(i));
        list.setCaption(row, 3, QStringLiteral("Danışmanlık ücreti"));
        list.setCaption(row, 4, QStringLiteral("B"));
        list.setCaption(row, 5, QString::number(1000 + i % 977));
        list.setCaption(row, 6, QStringLiteral("0"));
        list.setCaption(row, 7, QString::number(i * 12.5, 'f', 2));
    }
    QCoreApplication::processEvents();
    const double fill = double(timer.nsecsElapsed()) / 1e6;

    list.ChngSat(0);
    list.view()->setFocus();
    std::vector<double> steps;
    while (list.CurSat() < list.ListCount() - 1) {
        timer.restart();
        QKeyEvent pageDown(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
        QCoreApplication::sendEvent(list.view(), &pageDown);
        list.view()->viewport()->repaint();
        steps.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(steps.begin(), steps.end());
    std::printf("%-44s %9.1f ms %12s\n", "fill 32,751 rows x 8 columns", fill, "<= 150 ms");
    std::printf("%-44s %9.2f ms %12s\n", "PgDn page step, median (with repaint)", steps[steps.size() / 2], "<= 5 ms");
    std::printf("%-44s %9.2f ms %12s\n", "PgDn page step, slowest", steps.back(), "");
    std::printf("%-44s %9zu\n", "page steps", steps.size());
    return 0;
}
