#include "controls/ShrinkEffect.h"

#include <QWidget>
#include <QtTest>

Q_DECLARE_METATYPE(ShrinkRect)

class TestShrinkEffect : public QObject
{
    Q_OBJECT
private slots:
    void steps_data()
    {
        QTest::addColumn<ShrinkRect>("window");
        QTest::addColumn<bool>("towardCentre");
        QTest::addColumn<ShrinkRect>("first");
        QTest::addColumn<ShrinkRect>("last");
        QTest::newRow("centre") << ShrinkRect { 0, 0, 400, 200 } << true << ShrinkRect { 10, 5, 390, 195 }
                                << ShrinkRect { 200, 100, 200, 100 };
        QTest::newRow("centre, half step to even (down)")
            << ShrinkRect { 0, 0, 100, 100 } << true << ShrinkRect { 2, 2, 98, 98 } << ShrinkRect { 40, 40, 60, 60 };
        QTest::newRow("centre, half step to even (up)")
            << ShrinkRect { 0, 0, 140, 140 } << true << ShrinkRect { 4, 4, 136, 136 } << ShrinkRect { 80, 80, 60, 60 };
        QTest::newRow("origin") << ShrinkRect { 100, 40, 500, 240 } << false << ShrinkRect { 95, 38, 475, 228 }
                                << ShrinkRect { 0, 0, 0, 0 };
        QTest::newRow("origin, rounded steps") << ShrinkRect { 30, 50, 330, 250 } << false
                                               << ShrinkRect { 28, 48, 314, 238 } << ShrinkRect { -10, 10, 10, 10 };
    }

    void steps()
    {
        QFETCH(ShrinkRect, window);
        QFETCH(bool, towardCentre);
        QFETCH(ShrinkRect, first);
        QFETCH(ShrinkRect, last);
        const std::vector<ShrinkRect> steps = ShrinkSteps(window, towardCentre);
        QCOMPARE(steps.size(), size_t(20));
        QCOMPARE(steps.front(), first);
        QCOMPARE(steps.back(), last);
    }

    void narrowWindowInvertsAfterFifteenSteps()
    {
        const std::vector<ShrinkRect> steps = ShrinkSteps(ShrinkRect { 0, 0, 30, 400 }, true);
        QCOMPARE(steps[14].left, 15);
        QCOMPARE(steps[14].right, 15);
        QVERIFY(steps[15].left > steps[15].right);
    }

    void effectLeavesTheWindowAsItWas()
    {
        QWidget window;
        window.resize(300, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QList<QWidget *> before = window.findChildren<QWidget *>();
        ShrinkEffect(true);
        QCOMPARE(window.findChildren<QWidget *>().size(), before.size() + 1);
        QTRY_COMPARE_WITH_TIMEOUT(window.findChildren<QWidget *>(), before, 3000);
    }
};

QTEST_MAIN(TestShrinkEffect)
#include "tst_shrinkeffect.moc"
