#include "testsupport/ScreenSuite.h"

#include "money/AmountConventions.h"

#include <QtTest>

const QDate ScreenSuiteBase::today(2026, 11, 16);

ScreenSuiteBase::ScreenSuiteBase(const char *menuItem, const char *form, const QString &queue)
    : m_menuItem(menuItem)
    , m_form(form)
    , m_queue(queue)
{
}

void ScreenSuiteBase::initTestCase()
{
    if (m_queue.isEmpty())
        return;
    m_spooler = std::make_unique<PrivateSpooler>(m_queue);
    QVERIFY2(m_spooler->isReady(), qPrintable(m_spooler->error()));
}

void ScreenSuiteBase::init()
{
    m_kit = std::make_unique<ScreenFixture>(today);
    QVERIFY(m_kit->isReady());
    amountConventions().tlonda = 2;
    prepare();
    QVERIFY(openScreen());
}

void ScreenSuiteBase::cleanup()
{
    m_kit.reset();
}
