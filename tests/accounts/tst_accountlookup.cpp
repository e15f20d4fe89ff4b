#include "accounts/AccountLookup.h"
#include "controls/DcList.h"
#include "controls/XText.h"
#include "testsupport/Books.h"
#include "testsupport/BooksFixture.h"
#include "testsupport/Typing.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestAccountLookup : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
        QVERIFY(AddCard(QStringLiteral("MÇ02"), QStringLiteral("Ahmet Kaya")));
        QVERIFY(AddCard(QStringLiteral("MD01"), QStringLiteral("Zeynep Ak")));
        QVERIFY(AddCard(QStringLiteral("A01"), QStringLiteral("Ahenk Ltd.")));
        QVERIFY(AddCard(QStringLiteral("P1"), QStringLiteral("İsmail Işık")));
        QVERIFY(AddCard(QStringLiteral("Q1"), QStringLiteral("O'Neil %_ Ltd.")));
        QVERIFY(AddCard(QStringLiteral("I9"), QStringLiteral("Irmak Su")));
    }

    void cleanup()
    {
        m_books.reset();
        SetSelectedAccountCode(QString());
    }

    void opensWithEveryCardByTitle()
    {
        AccountLookup lookup;
        QCOMPARE(lookup.windowTitle(), QStringLiteral("Hesap Rehberi"));
        QCOMPARE(codes(lookup), QStringList({ "A01", "MÇ02", "I9", "P1", "Q1", "MD01" }));
    }

    void searches_data()
    {
        QTest::addColumn<int>("searchField");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("code M, in Turkish order") << 0 << u"M"_s << QStringList { "MÇ02", "MD01" };
        QTest::newRow("code in lower case") << 0 << u"mç"_s << QStringList { "MÇ02" };
        QTest::newRow("title Ah, by title") << 1 << u"Ah"_s << QStringList { "A01", "MÇ02" };
        QTest::newRow("i finds İ") << 1 << u"ism"_s << QStringList { "P1" };
        QTest::newRow("ı finds I") << 1 << u"ırm"_s << QStringList { "I9" };
        QTest::newRow("i does not find I") << 1 << u"irm"_s << QStringList {};
        QTest::newRow("quote, percent and underscore are literal") << 1 << u"O'Neil %_"_s << QStringList { "Q1" };
        QTest::newRow("percent is no wildcard") << 1 << u"%"_s << QStringList {};
    }

    void searches()
    {
        QFETCH(int, searchField);
        QFETCH(QString, typed);
        QFETCH(QStringList, found);
        AccountLookup lookup;
        lookup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lookup));
        field(lookup, searchField)->setFocus();
        typeKeys(field(lookup, searchField)->textBox(), typed);
        QCOMPARE(codes(lookup), found);
        QVERIFY(m_books->messages().entries().isEmpty());
    }

    void chosenRowIsReturned()
    {
        AccountLookup lookup;
        lookup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lookup));
        field(lookup, 0)->setFocus();
        typeKeys(field(lookup, 0)->textBox(), QStringLiteral("M"));
        QTest::keyClick(field(lookup, 0)->textBox(), Qt::Key_Return); // leaves the code field for the list
        QTableView *view = list(lookup)->view();
        QTRY_VERIFY(view->hasFocus());
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Down);
        QTest::keyClick(view, Qt::Key_Return);
        QCOMPARE(lookup.result(), int(QDialog::Accepted));
        QCOMPARE(SelectedAccountCode(), QStringLiteral("MD01"));
    }

    void cancelReturnsNothing_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("Esc in the list") << true;
        QTest::newRow("Vazgeç") << false;
    }

    void cancelReturnsNothing()
    {
        QFETCH(bool, escape);
        AccountLookup lookup;
        lookup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lookup));
        list(lookup)->ChngSat(1);
        list(lookup)->view()->setFocus();
        if (escape)
            QTest::keyClick(list(lookup)->view(), Qt::Key_Escape);
        else
            lookup.findChild<QPushButton *>(QStringLiteral("vazgec"))->click();
        QCOMPARE(lookup.result(), int(QDialog::Rejected));
        QCOMPARE(SelectedAccountCode(), QString());
    }

    // "m", Enter into the list, Enter: the first row, shown as current, is the one chosen.
    void highlightedRowIsReturnedAtOnce()
    {
        AccountLookup lookup;
        lookup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lookup));
        field(lookup, 0)->setFocus();
        typeKeys(field(lookup, 0)->textBox(), QStringLiteral("m"));
        QTest::keyClick(field(lookup, 0)->textBox(), Qt::Key_Return);
        QTRY_VERIFY(list(lookup)->view()->hasFocus());
        QCOMPARE(list(lookup)->CurSat(), 0);
        QTest::keyClick(list(lookup)->view(), Qt::Key_Return);
        QCOMPARE(lookup.result(), int(QDialog::Accepted));
        QCOMPARE(SelectedAccountCode(), QStringLiteral("MÇ02"));
    }

    void acceptingWithoutARowReturnsNothing()
    {
        SetSelectedAccountCode(QStringLiteral("ESKİ"));
        AccountLookup lookup;
        lookup.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lookup));
        field(lookup, 0)->setFocus();
        typeKeys(field(lookup, 0)->textBox(), QStringLiteral("ZZ"));
        QCOMPARE(list(lookup)->ListCount(), 0);
        lookup.findChild<QPushButton *>(QStringLiteral("tamam"))->click();
        QCOMPARE(SelectedAccountCode(), QString());
    }

    void lookupButtonFillsTheField()
    {
        QWidget screen;
        auto *code = new XText(&screen);
        AttachAccountLookup(code);
        QVERIFY(code->Button());
        screen.show();
        QTimer::singleShot(0, this, [this] {
            auto *lookup = qobject_cast<AccountLookup *>(QApplication::activeModalWidget());
            QVERIFY(lookup);
            list(*lookup)->ChngSat(0);
            lookup->choose();
        });
        code->setFocus();
        QTest::keyClick(code->textBox(), Qt::Key_F2);
        QCOMPARE(code->Text(), QStringLiteral("A01"));
        QCOMPARE(SelectedAccountCode(), QString()); // emptied after use
    }

private:
    XText *field(AccountLookup &lookup, int index) const
    {
        return lookup.findChild<XText *>(QStringLiteral("xtext1_%1").arg(index));
    }
    DcList *list(AccountLookup &lookup) const { return lookup.findChild<DcList *>(QStringLiteral("dclist1")); }
    QStringList codes(AccountLookup &lookup) const;

    std::unique_ptr<BooksFixture> m_books;
};

QStringList TestAccountLookup::codes(AccountLookup &lookup) const
{
    QStringList found;
    for (int row = 0; row < list(lookup)->ListCount(); ++row)
        found << list(lookup)->Caption(row, 0);
    return found;
}

QTEST_MAIN(TestAccountLookup)
#include "tst_accountlookup.moc"
