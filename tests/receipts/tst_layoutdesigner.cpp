#include "controls/XText.h"
#include "receipts/LayoutDesignerScreen.h"
#include "receipts/ReceiptPage.h"
#include "testsupport/Books.h"
#include "testsupport/QueryTexts.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/Typing.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestLayoutDesigner : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_fixture = std::make_unique<ScreenFixture>();
        QVERIFY(m_fixture->isReady());
        m_screen = m_fixture->open<LayoutDesignerScreen>("mnudiz", "Form14");
        QVERIFY(m_screen);
    }

    void cleanup() { m_fixture.reset(); }

    void newRowTakesTheNextNumber()
    {
        QCOMPARE(m_screen->windowTitle(), QStringLiteral("Serbest Meslek Makbuz Dizaynı"));
        QCOMPARE(m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"))->count(), 22);
        field(0)->setFocus();
        typeKeys(field(0)->textBox(), QStringLiteral("7"));
        addRow(0, QStringLiteral("30"), QStringLiteral("5"), QStringLiteral("2"), QStringLiteral("isim"));
        addRow(19, QStringLiteral("10"), QStringLiteral("75"), QStringLiteral("0"), QStringLiteral("Teşekkürler"));
        addRow(21, QStringLiteral("4"), QStringLiteral("60"), QStringLiteral("9"), QString());
        QCOMPARE(entries(), QStringList({ "0001 - Ünvan - isim", "0002 - Teşekkürler", "0003 - Tevkifat Oran - " }));
        QCOMPARE(StoredRows(u"sira, no, uzun, sol, ust FROM duzen"_s),
            QStringList({ "1|0|30.0|5.0|2.0", "2|19|10.0|75.0|0.0", "3|21|4.0|60.0|9.0" }));
        QCOMPARE(field(0)->Value().toInt(), 0);
        const std::vector<LayoutRow> rows = ReadLayout();
        QCOMPARE(rows.size(), size_t(3));
        QCOMPARE(rows[1].txt, QStringLiteral("Teşekkürler"));
    }

    void pickingARowShowsIt()
    {
        addRow(7, QStringLiteral("12"), QStringLiteral("60"), QStringLiteral("8"), QString());
        auto *list = m_screen->findChild<QListWidget *>(QStringLiteral("List1"));
        list->scrollToItem(list->item(0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        QCOMPARE(field(0)->Value().toInt(), 1);
        QCOMPARE(
            m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"))->currentText(), QStringLiteral("Brüt Ücret"));
        QCOMPARE(field(2)->Text(), QStringLiteral("60"));
        field(3)->setFocus();
        QCoreApplication::processEvents();
        typeKeys(field(3)->textBox(), QStringLiteral("9"));
        m_screen->findChild<QPushButton *>(QStringLiteral("ekle"))->click(); // changes row 1
        QCOMPARE(StoredRows(u"sira, ust FROM duzen"_s), QStringList { "1|9.0" });
    }

    void arrowKeysLoadTheHighlightedRow()
    {
        addRow(7, QStringLiteral("12"), QStringLiteral("60"), QStringLiteral("8"), QString());
        addRow(7, QStringLiteral("12"), QStringLiteral("70"), QStringLiteral("9"), QString());
        auto *list = m_screen->findChild<QListWidget *>(QStringLiteral("List1"));
        list->setFocus();
        list->setCurrentRow(0);
        QCOMPARE(field(0)->Value().toInt(), 1);
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(field(0)->Value().toInt(), 2);
        QCOMPARE(field(2)->Text(), QStringLiteral("70"));
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(field(0)->Value().toInt(), 1);
        QCOMPARE(field(2)->Text(), QStringLiteral("60"));
    }

    void deleteAsksFirst()
    {
        addRow(1, QStringLiteral("20"), QStringLiteral("5"), QStringLiteral("3"), QString());
        field(0)->setValue(1);
        m_fixture->messages().answerNext(false);
        m_screen->findChild<QPushButton *>(QStringLiteral("sil"))->click();
        QCOMPARE(m_fixture->messages().texts(), QStringList { QStringLiteral("Kayıt Silinecek ?") });
        QCOMPARE(entries().size(), 1);
        m_fixture->messages().answerNext(true);
        m_screen->findChild<QPushButton *>(QStringLiteral("sil"))->click();
        QCOMPARE(entries(), QStringList());
        field(0)->setValue(5);
        m_screen->findChild<QPushButton *>(QStringLiteral("sil"))->click(); // no such row: nothing asked
        QCOMPARE(m_fixture->messages().entries().size(), 2);
    }

    void enterInTheItemListMovesOn()
    {
        auto *items = m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"));
        items->setFocus();
        QTest::keyClick(items, Qt::Key_Down);
        QTest::keyClick(items, Qt::Key_Return);
        QCOMPARE(items->currentIndex(), 1);
        QVERIFY(field(1)->textBox()->hasFocus());
    }

    void refusedRowIsReported()
    {
        QVERIFY(RefuseWrites(QStringLiteral("duzen"), QStringLiteral("INSERT")));
        addRow(1, QStringLiteral("20"), QStringLiteral("5"), QStringLiteral("3"), QString());
        QCOMPARE(m_fixture->messages().texts(), QStringList { QStringLiteral("Kayıt Yapılamıyor.") });
        QCOMPARE(entries(), QStringList());
        QCOMPARE(field(2)->Text(), QStringLiteral("5")); // what was typed stays for another try
    }

private:
    XText *field(int index) const { return m_screen->findChild<XText *>(QStringLiteral("xtext1_%1").arg(index)); }
    QStringList entries() const;
    void addRow(int item, const QString &width, const QString &column, const QString &line, const QString &text);

    std::unique_ptr<ScreenFixture> m_fixture;
    QPointer<LayoutDesignerScreen> m_screen;
};

QStringList TestLayoutDesigner::entries() const
{
    QStringList texts;
    auto *list = m_screen->findChild<QListWidget *>(QStringLiteral("List1"));
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}

void TestLayoutDesigner::addRow(
    int item, const QString &width, const QString &column, const QString &line, const QString &text)
{
    const QString values[] = { width, column, line, text };
    for (int i = 0; i < 4; ++i) {
        field(i + 1)->setFocus(); // leaving the number field first, as the focus order goes
        if (i == 0)
            m_screen->findChild<QComboBox *>(QStringLiteral("Combo1"))->setCurrentIndex(item);
        QCoreApplication::processEvents();
        typeKeys(field(i + 1)->textBox(), values[i]);
    }
    m_screen->findChild<QPushButton *>(QStringLiteral("ekle"))->click();
}

QTEST_MAIN(TestLayoutDesigner)
#include "tst_layoutdesigner.moc"
