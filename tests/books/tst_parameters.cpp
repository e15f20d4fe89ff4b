#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "money/AmountConventions.h"
#include "testsupport/BooksFixture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

qint64 rowsFor(const QString &key)
{
    std::unique_ptr<Recordset> rows;
    if (!QueryOpen(*dataFiles().db, rows, QStringLiteral("SELECT count(*) AS n FROM genel WHERE kod = ?1"), { key }))
        return -1;
    return FieldRead(*rows, QStringLiteral("n")).toLongLong();
}

} // namespace

class TestParameters : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
    }

    void cleanup() { m_books.reset(); }

    void freshBookReadsEmpty()
    {
        LoadParameters();
        const ParameterSet &set = parameters();
        QCOMPARE(set.stopaj, 0.0f);
        QCOMPARE(set.fon, 0.0f);
        QCOMPARE(set.kdv, 0.0f);
        QCOMPARE(amountConventions().tlonda, 0); // never saved: amounts run without decimals
        QCOMPARE(set.serino, Currency());
        QCOMPARE(set.emanet, Currency());
        QCOMPARE(set.not1, QString());
        QCOMPARE(set.unvan, QString());
    }

    void typedRoundTrip()
    {
        GenelSingSet(QStringLiteral("kdv"), 18.5f);
        GenelIntegSet(QStringLiteral("tlonda"), 2);
        GenelCurrenSet(QStringLiteral("serino"), Currency::fromUnits(500));
        GenelTxtSet(QStringLiteral("unvan"), QStringLiteral("Av. Şükrü Öztürk"));
        QCOMPARE(GenelSingGet(QStringLiteral("kdv")), 18.5f);
        QCOMPARE(GenelIntegGet(QStringLiteral("tlonda")), 2);
        QCOMPARE(GenelCurrenGet(QStringLiteral("serino")), Currency::fromUnits(500));
        QCOMPARE(GenelTxtGet(QStringLiteral("unvan")), QStringLiteral("Av. Şükrü Öztürk"));
        QCOMPARE(GenelTxtGet(QStringLiteral("absent")), QString());
        QVERIFY(m_books->messages().entries().isEmpty());
    }

    void secondWriteEditsTheSameRow()
    {
        GenelTxtSet(QStringLiteral("lastack"), QStringLiteral("Danışmanlık"));
        GenelTxtSet(QStringLiteral("lastack"), QStringLiteral("Dava takibi"));
        QCOMPARE(rowsFor(QStringLiteral("lastack")), qint64(1));
        QCOMPARE(GenelTxtGet(QStringLiteral("lastack")), QStringLiteral("Dava takibi"));
    }

    void otherColumnsOfARowReadEmpty()
    {
        GenelTxtSet(QStringLiteral("x"), QStringLiteral("metin"));
        GenelSingSet(QStringLiteral("y"), 3.0f);
        QCOMPARE(GenelSingGet(QStringLiteral("x")), 0.0f);
        QCOMPARE(GenelCurrenGet(QStringLiteral("x")), Currency());
        QCOMPARE(GenelTxtGet(QStringLiteral("y")), QString());
        QCOMPARE(GenelIntegGet(QStringLiteral("y")), 0);
    }

    void tooLongKeyIsRefused_data()
    {
        QTest::addColumn<bool>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("text setter") << true << u"Genel Kaydı Yapılamadı."_s;
        QTest::newRow("number setter") << false << u"Genl Kaydı Yapılamadı."_s;
    }

    void tooLongKeyIsRefused()
    {
        QFETCH(bool, text);
        QFETCH(QString, message);
        const QString key = QStringLiteral("ninechars");
        if (text)
            GenelTxtSet(key, QStringLiteral("a"));
        else
            GenelIntegSet(key, 7);
        QCOMPARE(m_books->messages().texts(), QStringList { message });
        QCOMPARE(m_books->messages().entries().first().kind, Message::Kind::Exclamation);
        QCOMPARE(GenelTxtGet(key), QString());
        QCOMPARE(GenelIntegGet(key), 0);
        // the refused record does not linger: the next write of a good key goes through
        GenelIntegSet(QStringLiteral("tlonda"), 3);
        QCOMPARE(GenelIntegGet(QStringLiteral("tlonda")), 3);
    }

    void loadFillsTheSet()
    {
        GenelSingSet(QStringLiteral("stopaj"), 20.0f);
        GenelSingSet(QStringLiteral("fon"), 10.0f);
        GenelSingSet(QStringLiteral("kdv"), 18.0f);
        GenelIntegSet(QStringLiteral("tlonda"), 2);
        GenelCurrenSet(QStringLiteral("serino"), Currency::fromUnits(41));
        GenelCurrenSet(QStringLiteral("emanet"), Currency::fromUnits(7));
        GenelTxtSet(QStringLiteral("not1"), QStringLiteral("Telefon"));
        GenelTxtSet(QStringLiteral("not4"), QStringLiteral("E-posta"));
        GenelTxtSet(QStringLiteral("unvan"), QStringLiteral("Ayşe Yılmaz"));
        amountConventions().tlonda = 5;
        LoadParameters();
        const ParameterSet &set = parameters();
        QCOMPARE(set.stopaj, 20.0f);
        QCOMPARE(set.fon, 10.0f);
        QCOMPARE(set.kdv, 18.0f);
        QCOMPARE(amountConventions().tlonda, 2);
        QCOMPARE(set.serino, Currency::fromUnits(41));
        QCOMPARE(set.emanet, Currency::fromUnits(7));
        QCOMPARE(set.not1, QStringLiteral("Telefon"));
        QCOMPARE(set.not4, QStringLiteral("E-posta"));
        QCOMPARE(set.unvan, QStringLiteral("Ayşe Yılmaz"));
    }

private:
    std::unique_ptr<BooksFixture> m_books;
};

QTEST_GUILESS_MAIN(TestParameters)
#include "tst_parameters.moc"
