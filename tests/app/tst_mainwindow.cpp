#include "app/MainWindow.h"
#include "app/SplashWindow.h"
#include "app/StartRoutine.h"
#include "books/OpenBooks.h"
#include "controls/ValueLabel.h"
#include "testsupport/Golden.h"
#include "testsupport/MessageLog.h"
#include "testsupport/ScreenFixture.h"

#include <QAccessible>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestMainWindow : public QObject
{
    Q_OBJECT
private slots:
    void menuIsExactlyTheProgramsMenu()
    {
        MainWindow window;
        QCOMPARE(window.objectName(), QStringLiteral("anamenu"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Serbest Meslek "));
        QString menu;
        for (QAction *top : window.menuBar()->actions()) {
            menu += top->menu()->objectName() + u' ' + top->text() + u'\n';
            for (QAction *item : top->menu()->actions())
                menu += QStringLiteral("  ") + item->objectName() + u' '
                    + (item->isSeparator() ? QStringLiteral("-") : item->text()) + u'\n';
        }
        COMPARE_GOLDEN(menu, "app/menu.txt");
    }

    void itemsWaitForTheirScreens()
    {
        MainWindow window;
        QAction *item = window.menuItem(QStringLiteral("mnukasa"));
        QVERIFY(item);
        QVERIFY(!item->isEnabled());
        window.addScreen(QStringLiteral("mnukasa"), [] { return new QWidget; });
        QVERIFY(item->isEnabled());
    }

    void aScreenOpensOnceAndComesForward()
    {
        MainWindow window;
        window.show();
        int made = 0;
        QPointer<QWidget> last;
        window.addScreen(QStringLiteral("mnukasa"), [&made, &last] {
            ++made;
            auto *screen = new QWidget;
            last = screen;
            screen->setWindowTitle(QStringLiteral("Kasa"));
            return screen;
        });
        window.addScreen(QStringLiteral("mnuayarlar"), [] { return new QWidget; });
        window.menuItem(QStringLiteral("mnukasa"))->trigger();
        window.menuItem(QStringLiteral("mnuayarlar"))->trigger();
        QCOMPARE(window.area()->subWindowList().size(), 2);
        window.menuItem(QStringLiteral("mnukasa"))->trigger();
        QCOMPARE(made, 1);
        QCOMPARE(window.area()->subWindowList().size(), 2);
        QCOMPARE(window.area()->activeSubWindow()->widget()->windowTitle(), QStringLiteral("Kasa"));

        window.area()->activeSubWindow()->close(); // a closed screen is made afresh next time
        QTRY_VERIFY(!last);
        QCOMPARE(window.area()->subWindowList().size(), 1);
        window.menuItem(QStringLiteral("mnukasa"))->trigger();
        QCOMPARE(made, 2);
    }

    void splashGivesWayToTheMainWindow()
    {
        MessageLog messages;
        QTemporaryDir dir;
        QVERIFY(OpenBooks(dir.path()));
        StartRoutine start(200);
        start.showSplash();
        QVERIFY(start.splash());
        QCOMPARE(start.splash()->windowTitle(), QStringLiteral("Serbest Meslek "));
        QCOMPARE(start.splash()->size(), QSize(300, 170));
        QVERIFY(!start.mainWindow());
        QTRY_VERIFY(start.mainWindow() && start.mainWindow()->isVisible());
        QTRY_VERIFY(!start.splash());
    }

    // Every screen's value labels, empty or not, read as what they show (and say what they are), and
    // show it whole.
    void valueLabelsReadAsTheyShow()
    {
        ScreenFixture kit;
        QVERIFY(kit.isReady());
        for (QAction *top : kit.window().menuBar()->actions())
            for (QAction *item : top->menu()->actions())
                if (!item->isSeparator() && item->objectName() != u"mnudiz")
                    item->trigger();
        const QList<ValueLabel *> labels = kit.window().findChildren<ValueLabel *>();
        QVERIFY(labels.size() > 20);
        for (ValueLabel *label : labels) {
            QAccessibleInterface *read = QAccessible::queryAccessibleInterface(label);
            QVERIFY(read);
            QCOMPARE(read->text(QAccessible::Name), label->text());
            QVERIFY(!read->text(QAccessible::Description).isEmpty());
        }
        // The widest amount a label may show is shown whole on every screen.
        const QString widest = QStringLiteral("-922,337,203,685,477.58 B");
        for (ValueLabel *label : labels)
            label->setValue(widest);
        QTest::qWait(200);
        for (ValueLabel *label : labels)
            QVERIFY2(label->contentsRect().width() >= label->fontMetrics().horizontalAdvance(widest),
                qPrintable(label->accessibleDescription()));
    }

    void everyScreenIsTitledLabelledAndClosedByEsc_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("title");
        QTest::newRow("mnucarkart") << u"mnucarkart"_s << u"Form3"_s << u"Cari Kartlar"_s;
        QTest::newRow("mnucarhar") << u"mnucarhar"_s << u"Form4"_s << u"Cari Hareketler"_s;
        QTest::newRow("mnucareks") << u"mnucareks"_s << u"Form16"_s << u"Cari Hareket Dökümü"_s;
        QTest::newRow("mnugbor") << u"mnugbor"_s << u"Form10"_s << u"Genel Borç Alacak Listesi"_s;
        QTest::newRow("mnukasa") << u"mnukasa"_s << u"Form7"_s << u"Kasa Defteri"_s;
        QTest::newRow("mnumkb") << u"mnumkb"_s << u"Form1"_s << u"Serbest Meslek Makbuzu"_s;
        QTest::newRow("mnuemanet") << u"mnuemanet"_s << u"Form6"_s << u"Emanet Alındı Makbuzu"_s;
        QTest::newRow("mnuesmm") << u"mnuesmm"_s << u"FormEsmm"_s << u"e-SMM Aktar"_s;
        QTest::newRow("mnusdef") << u"mnusdef"_s << u"Form8"_s << u"Serbest Meslek Defteri (Gelir)"_s;
        QTest::newRow("mnukdv") << u"mnukdv"_s << u"Form9"_s << u"Kdv, Stopaj Raporu"_s;
        QTest::newRow("mnuresmi") << u"mnuresmi"_s << u"Form12"_s << u"Serbest Meslek Defteri"_s;
        QTest::newRow("mnustoplst") << u"mnustoplst"_s << u"Form15"_s << u"Stopaj Listesi"_s;
        QTest::newRow("mnuayarlar") << u"mnuayarlar"_s << u"Form2"_s << u"Ayarlar"_s;
    }

    // What every screen shares: its title, every labelled control named by its label, and Esc
    // from the control that has the focus closes it.
    void everyScreenIsTitledLabelledAndClosedByEsc()
    {
        QFETCH(QString, item);
        QFETCH(QString, form);
        QFETCH(QString, title);
        ScreenFixture kit;
        QVERIFY(kit.isReady());
        kit.window().show();
        QPointer<QWidget> screen = kit.open<QWidget>(qPrintable(item), qPrintable(form));
        QVERIFY(screen);
        QTRY_COMPARE(screen->windowTitle(), title);
        for (const QLabel *label : screen->findChildren<QLabel *>())
            if (label->buddy() && !label->text().isEmpty()) // an empty label's field has a name of its own
                QCOMPARE(label->buddy()->accessibleName(), QString(label->text()).remove(u'&'));
        QTRY_VERIFY(screen->focusWidget());
        QTest::keyClick(screen->focusWidget(), Qt::Key_Escape);
        QTRY_VERIFY(screen.isNull());
    }

    void screenOutlivesItsPrinterDialog_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("form");
        QTest::newRow("Genel Borç Alacak Listesi") << u"mnugbor"_s << u"Form10"_s;
        QTest::newRow("Cari Hareket Dökümü") << u"mnucareks"_s << u"Form16"_s;
        QTest::newRow("Kasa") << u"mnukasa"_s << u"Form7"_s;
    }

    // F8 and at once Ctrl+W: the close reaches the screen while its printer dialog runs.
    void screenOutlivesItsPrinterDialog()
    {
        QFETCH(QString, item);
        QFETCH(QString, form);
        ScreenFixture kit;
        QVERIFY(kit.isReady());
        QPointer<QWidget> screen = kit.open<QWidget>(qPrintable(item), qPrintable(form));
        QVERIFY(screen);
        bool outlived = false;
        QTimer::singleShot(0, this, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            qobject_cast<QMdiSubWindow *>(screen->parentWidget())->close();
            outlived = !screen.isNull() && screen->isVisible();
            dialog->findChild<QPushButton *>(QStringLiteral("Command5"))->click(); // "Vazgeç"
        });
        QTest::keyClick(screen->focusWidget(), Qt::Key_F8);
        QVERIFY(outlived);
        QVERIFY(screen);
        qobject_cast<QMdiSubWindow *>(screen->parentWidget())->close();
        QTRY_VERIFY(screen.isNull()); // with the dialog gone it closes
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
