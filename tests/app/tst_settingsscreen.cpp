#include "app/MainWindow.h"
#include "app/SettingsScreen.h"
#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "money/FormatAmount.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/Typing.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QtTest>

namespace {

QStringList genelRows()
{
    return QueryTexts(QStringLiteral("SELECT kod FROM genel ORDER BY kod"), QStringLiteral("kod"));
}

} // namespace

class TestSettingsScreen : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_fixture = std::make_unique<ScreenFixture>();
        QVERIFY(m_fixture->isReady());
        LoadParameters();
        m_screen = m_fixture->open<SettingsScreen>("mnuayarlar", "Form2");
        QVERIFY(m_screen);
    }

    void cleanup() { m_fixture.reset(); }

    void opensFromTheMenu()
    {
        QVERIFY(m_fixture->window().menuItem(QStringLiteral("mnuayarlar"))->isEnabled());
        QVERIFY(field(0)->textBox()->hasFocus());
        m_fixture->window().menuItem(QStringLiteral("mnuayarlar"))->trigger();
        QCOMPARE(m_fixture->window().findChildren<SettingsScreen *>().size(), 1);
    }

    void labelsNameTheFields()
    {
        const QStringList labels = { "Stopaj Oran %", "Fon Oran %", "K.D.V. Oran %", "TL Onda", "Makbuz Seri No",
            "Emanet Seri No", "Not 1 İsim", "Not 2 İsim", "Not 3 İsim", "Not 4 İsim", "Ünvan", "Vergi No" };
        for (int i = 0; i < labels.size(); ++i) {
            QCOMPARE(field(i)->accessibleName(), labels[i]);
            QCOMPARE(field(i)->textBox()->accessibleName(), labels[i]);
        }
        for (int i = 0; i < 6; ++i)
            QCOMPARE(field(i)->textBox()->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    }

    void showsTheParameterSet()
    {
        m_screen->closeScreen();
        GenelIntegSet(QStringLiteral("tlonda"), 2); // a book whose settings were saved
        parameters().kdv = 18.5f;
        amountConventions().tlonda = 2;
        parameters().serino = Currency::fromUnits(500);
        parameters().unvan = QStringLiteral("Av. Ayşe Yılmaz");
        QTRY_VERIFY(!m_screen);
        m_fixture->window().menuItem(QStringLiteral("mnuayarlar"))->trigger();
        m_screen = m_fixture->window().findChild<SettingsScreen *>(QStringLiteral("Form2"));
        QCOMPARE(field(0)->Text(), QString());
        QCOMPARE(field(2)->Text(), QStringLiteral("18.50"));
        QCOMPARE(field(3)->Text(), QStringLiteral("2"));
        QCOMPARE(field(4)->Text(), QStringLiteral("500"));
        QCOMPARE(field(10)->Text(), QStringLiteral("Av. Ayşe Yılmaz"));
    }

    void saveStoresEveryParameterOnce()
    {
        typeInto(0, QStringLiteral("20"));
        typeInto(1, QStringLiteral("10"));
        typeInto(2, QStringLiteral("18.5"));
        typeInto(3, QStringLiteral("2"));
        typeInto(4, QStringLiteral("500"));
        typeInto(5, QStringLiteral("7"));
        typeInto(6, QStringLiteral("Telefon"));
        typeInto(10, QStringLiteral("Av. Şule Işık"));
        typeInto(11, QStringLiteral("1111111111"));
        press("kaydet");
        QTRY_VERIFY(!m_screen);

        const ParameterSet &set = parameters();
        QCOMPARE(set.stopaj, 20.0f);
        QCOMPARE(set.kdv, 18.5f);
        QCOMPARE(amountConventions().tlonda, 2);
        QCOMPARE(set.serino, Currency::fromUnits(500));
        QCOMPARE(GenelSingGet(QStringLiteral("fon")), 10.0f);
        QCOMPARE(GenelCurrenGet(QStringLiteral("emanet")), Currency::fromUnits(7));
        QCOMPARE(GenelTxtGet(QStringLiteral("not1")), QStringLiteral("Telefon"));
        QCOMPARE(GenelTxtGet(QStringLiteral("unvan")), QStringLiteral("Av. Şule Işık"));
        QCOMPARE(set.vergino, QStringLiteral("1111111111"));
        const QStringList keys = { "emanet", "fon", "kdv", "not1", "not2", "not3", "not4", "serino", "stopaj", "tlonda",
            "unvan", "vergino" };
        QCOMPARE(genelRows(), keys);

        m_fixture->window().menuItem(QStringLiteral("mnuayarlar"))->trigger();
        m_screen = m_fixture->window().findChild<SettingsScreen *>(QStringLiteral("Form2"));
        typeInto(4, QStringLiteral("501"));
        press("kaydet");
        QCOMPARE(genelRows(), keys);
        QCOMPARE(GenelCurrenGet(QStringLiteral("serino")), Currency::fromUnits(501));
        QCOMPARE(GenelSingGet(QStringLiteral("kdv")), 18.5f);
        QVERIFY(m_fixture->messages().entries().isEmpty());
    }

    void enterOnTheFocusedButtonPressesIt()
    {
        typeInto(10, QStringLiteral("Av. Deniz Kaya"));
        auto *save = m_screen->findChild<QPushButton *>(QStringLiteral("kaydet"));
        save->setFocus();
        QTest::keyClick(save, Qt::Key_Return);
        QTRY_VERIFY(!m_screen);
        QCOMPARE(GenelTxtGet(QStringLiteral("unvan")), QStringLiteral("Av. Deniz Kaya"));
    }

    void cancelChangesNothing()
    {
        typeInto(0, QStringLiteral("20"));
        typeInto(10, QStringLiteral("Deneme"));
        press("vazgec");
        QTRY_VERIFY(!m_screen);
        QCOMPARE(parameters().stopaj, 0.0f);
        QCOMPARE(parameters().unvan, QString());
        QCOMPARE(genelRows(), QStringList());
    }

    // A fresh book: the main window says the settings were never saved and leads to them; the
    // screen offers today's usual rates and two decimals without storing them; "Kaydet" stores
    // them and the notice goes.
    void unsavedBookIsOfferedUsualValues()
    {
        auto *notice = m_fixture->window().findChild<QLabel *>(QStringLiteral("ayarnotu"));
        QVERIFY(notice->isVisible());
        QVERIFY(notice->text().startsWith(QStringLiteral("Ayarlar henüz kaydedilmedi")));
        QCOMPARE(QStringList({ field(0)->Text(), field(1)->Text(), field(2)->Text(), field(3)->Text() }),
            QStringList({ "20.00", "", "20.00", "2" }));
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM genel"), QStringLiteral("n")), QStringList { "0" });
        m_screen->closeScreen();
        QTRY_VERIFY(!m_screen);
        m_fixture->window().findChild<QPushButton *>(QStringLiteral("ayarac"))->click();
        m_screen = m_fixture->window().findChild<SettingsScreen *>(QStringLiteral("Form2"));
        QVERIFY(m_screen);
        press("kaydet");
        QTRY_VERIFY(!m_screen);
        QTRY_VERIFY(!notice->isVisible());
        QCOMPARE(amountConventions().tlonda, 2);
        QCOMPARE(parameters().kdv, 20.0f);
    }

    void escapeInTheFirstFieldCloses()
    {
        typeInto(1, QStringLiteral("5"));
        QTest::keyClick(field(1)->textBox(), Qt::Key_Escape);
        QVERIFY(m_screen && m_screen->isVisible());
        field(0)->setFocus();
        QTest::keyClick(field(0)->textBox(), Qt::Key_Escape);
        QTRY_VERIFY(!m_screen);
        QCOMPARE(m_fixture->window().area()->subWindowList().size(), 0);
    }

    void decimalsChangeHowAmountsShow()
    {
        const Currency amount = Currency::fromString(u"1234.5");
        QCOMPARE(FormatAmount(amount), QStringLiteral("1,235")); // a fresh book has no decimals
        typeInto(3, QStringLiteral("2"));
        press("kaydet");
        QCOMPARE(FormatAmount(amount), QStringLiteral("1,234.50"));
    }

private:
    XText *field(int index) const;
    void typeInto(int index, const QString &keys);
    void press(const char *button);

    std::unique_ptr<ScreenFixture> m_fixture;
    QPointer<SettingsScreen> m_screen;
};

XText *TestSettingsScreen::field(int index) const
{
    return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index));
}

void TestSettingsScreen::typeInto(int index, const QString &keys)
{
    field(index)->setFocus();
    typeKeys(field(index)->textBox(), keys);
}

void TestSettingsScreen::press(const char *button)
{
    m_screen->findChild<QPushButton *>(QString::fromLatin1(button))->click();
}

QTEST_MAIN(TestSettingsScreen)
#include "tst_settingsscreen.moc"
