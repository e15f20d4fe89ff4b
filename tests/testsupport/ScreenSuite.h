#pragma once

#include "testsupport/PrivateSpooler.h"
#include "testsupport/ScreenFixture.h"

#include <QObject>
#include <QPointer>

#include <memory>

// What a screen's test suite stands on: the spooler its printouts go to (when it names a queue),
// and for every test a fresh book and program window on 16 November 2026 with "TL Onda" 2,
// prepare()'s books, then the screen opened from its menu item.
class ScreenSuiteBase : public QObject
{
    Q_OBJECT
protected:
    ScreenSuiteBase(const char *menuItem, const char *form, const QString &queue);
    // What the books hold before the screen opens.
    virtual void prepare() {}
    virtual bool openScreen() = 0;

    static const QDate today;
    const char *m_menuItem;
    const char *m_form;
    std::unique_ptr<PrivateSpooler> m_spooler;
    std::unique_ptr<ScreenFixture> m_kit;

private slots:
    void initTestCase();
    void init();
    void cleanup();

private:
    QString m_queue;
};

template <typename ScreenType> class ScreenSuite : public ScreenSuiteBase
{
protected:
    ScreenSuite(const char *menuItem, const char *form, const QString &queue = QString())
        : ScreenSuiteBase(menuItem, form, queue)
    {
    }
    bool openScreen() override
    {
        m_screen = m_kit->open<ScreenType>(m_menuItem, m_form);
        return m_screen;
    }

    QPointer<ScreenType> m_screen;
};
