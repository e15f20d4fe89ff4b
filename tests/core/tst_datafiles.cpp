#include "core/AccessLayer.h"
#include "core/DataFiles.h"
#include "core/Parameters.h"
#include "core/StartRoutine.h"
#include "money/AmountConventions.h"
#include "testsupport/MessageLog.h"
#include "testsupport/QueryTexts.h"

#include <QtTest>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// "name type" per column of a table, in order, as the data file declares them.
QStringList columnsOf(const QString &table)
{
    return QueryTexts(
        QStringLiteral("SELECT name || ' ' || type AS c FROM pragma_table_info(?1)"), QStringLiteral("c"), { table });
}

} // namespace

class TestDataFiles : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void firstStartCreatesTheBook();
    void schema_data();
    void schema();
    void secondStartOpensTheSameFile();
    void olderFileGetsItsLookupIndex();
    void unusableFileIsLeftAlone_data();
    void unusableFileIsLeftAlone();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MessageLog> m_messages;
};

void TestDataFiles::init()
{
    ResetParameters();
    m_dir = std::make_unique<QTemporaryDir>();
    m_messages = std::make_unique<MessageLog>();
}

void TestDataFiles::cleanup()
{
    CloseDataFiles();
    m_messages.reset();
    m_dir.reset();
}

void TestDataFiles::firstStartCreatesTheBook()
{
    StartRoutine start;
    QVERIFY(start.run(m_dir->path()));
    QVERIFY(m_messages->entries().isEmpty());
    QVERIFY(QFile::exists(m_dir->filePath(QStringLiteral("xsmm.dat"))));
    QCOMPARE(DataFilePath(), m_dir->filePath(QStringLiteral("xsmm.dat")));
    for (Recordset *cursor : { dataFiles().genel.get(), dataFiles().carkart.get(), dataFiles().carhar.get(),
             dataFiles().defter.get(), dataFiles().duzen.get() }) {
        QVERIFY(cursor);
        QCOMPARE(RsCount(*cursor), qint64(0));
    }
    QCOMPARE(amountConventions().tlonda, 0);
    QCOMPARE(parameters().serino, Currency());
}

void TestDataFiles::schema_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QStringList>("expectedIndexes"); // the auto-numbers are the row numbers themselves
    QTest::newRow("genel") << "genel"
                           << QStringList { "kod TEXT(8)", "sing FLOAT", "byt TINYINT", "integ SMALLINT",
                                  "curren CURRENCY", "txt TEXT(40)" }
                           << QStringList { "genel_kod 1" };
    QTest::newRow("carkart") << "carkart"
                             << QStringList { "kod TEXT(8)", "unv TEXT(50)", "adr1 TEXT(50)", "adr2 TEXT(50)",
                                    "vd TEXT(15)", "vn TEXT(15)", "ucret CURRENCY", "tip TINYINT", "not1 TEXT(50)",
                                    "not2 TEXT(50)", "not3 TEXT(50)", "not4 TEXT(50)" }
                             << QStringList { "carkart_kod 1" };
    QTest::newRow("carhar") << "carhar"
                            << QStringList { "kod TEXT(8)", "tarih DATE", "islem TINYINT", "evrak TEXT(8)",
                                   "ack TEXT(40)", "ba TINYINT", "tutar CURRENCY", "oto INTEGER" }
                            << QStringList { "carhar_islemtarih 0", "carhar_kodbakiye 0", "carhar_kodtarih 0" };
    QTest::newRow("defter") << "defter"
                            << QStringList { "sira SMALLINT", "tarih DATE", "islem TINYINT", "evrak TEXT(8)",
                                   "cari TEXT(8)", "ack TEXT(40)", "brut CURRENCY", "stopaj CURRENCY", "fon CURRENCY",
                                   "kdv CURRENCY", "oto INTEGER" }
                            << QStringList { "defter_islemcari 0", "defter_tarihislem 0" };
    QTest::newRow("duzen") << "duzen"
                           << QStringList { "sira INTEGER", "no SMALLINT", "uzun FLOAT", "sol FLOAT", "ust FLOAT",
                                  "txt TEXT(40)" }
                           << QStringList {};
}

void TestDataFiles::schema()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    QFETCH(QStringList, expectedIndexes);
    SetProgramFolder(m_dir->path());
    QVERIFY(CreateDataFiles());
    QVERIFY(OpenDataFiles());
    QCOMPARE(columnsOf(table), columns);
    const QStringList indexes
        = QueryTexts(QStringLiteral("SELECT name || ' ' || \"unique\" AS i FROM pragma_index_list(?1) ORDER BY name"),
            QStringLiteral("i"), { table });
    QCOMPARE(indexes, expectedIndexes);
}

void TestDataFiles::olderFileGetsItsLookupIndex()
{
    SetProgramFolder(m_dir->path());
    QVERIFY(CreateDataFiles());
    QVERIFY(OpenDataFiles());
    QVERIFY(SqlExecute(
        *dataFiles().db, QStringLiteral("INSERT INTO carhar (kod, islem, ba, tutar) VALUES ('K1', 1, 0, 5)")));
    for (const char *index : { "carhar_islemtarih", "carhar_kodbakiye" }) // as a file made before them
        QVERIFY(SqlExecute(*dataFiles().db, QStringLiteral("DROP INDEX ") + QString::fromLatin1(index)));
    QVERIFY(OpenDataFiles());
    const QString indexes = QStringLiteral("SELECT name FROM pragma_index_list('carhar') ORDER BY name");
    QCOMPARE(QueryTexts(indexes, QStringLiteral("name")), QStringList({ "carhar_islemtarih", "carhar_kodbakiye", "carhar_kodtarih" }));
    QCOMPARE(
        QueryTexts(QStringLiteral("SELECT kod || tutar AS r FROM carhar"), QStringLiteral("r")), QStringList { "K15" });
}

void TestDataFiles::secondStartOpensTheSameFile()
{
    {
        StartRoutine start;
        QVERIFY(start.run(m_dir->path()));
        GenelTxtSet(QStringLiteral("unvan"), QStringLiteral("Ayşe Yılmaz"));
        CloseDataFiles();
    }
    ResetParameters();
    StartRoutine again;
    QVERIFY(again.run(m_dir->path()));
    QCOMPARE(parameters().unvan, QStringLiteral("Ayşe Yılmaz"));
    QVERIFY(m_messages->entries().isEmpty());
}

void TestDataFiles::unusableFileIsLeftAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray garbage;
    for (int i = 0; i < 8192; ++i)
        garbage += char((i * 7919) % 251);
    QTest::newRow("not a database") << garbage;
    QTest::newRow("text") << QByteArray("Bu bir veri dosyası değil.\r\n");
}

void TestDataFiles::unusableFileIsLeftAlone()
{
    QFETCH(QByteArray, bytes);
    const QString path = m_dir->filePath(QStringLiteral("xsmm.dat"));
    QVERIFY(writeFile(path, bytes));
    StartRoutine start;
    QVERIFY(!start.run(m_dir->path()));
    QCOMPARE(m_messages->texts(),
        QStringList({ QStringLiteral("\nSql Dosyası Yaratılamadı."), QStringLiteral("Dosyalar Yaratılamıyor...") }));
    QCOMPARE(contents(path), bytes);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList { QStringLiteral("xsmm.dat") });
}

QTEST_MAIN(TestDataFiles)
#include "tst_datafiles.moc"
