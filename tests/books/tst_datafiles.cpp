#include "books/AccessLayer.h"
#include "books/Backups.h"
#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Database.h"
#include "books/OpenBooks.h"
#include "books/Parameters.h"
#include "books/Postings.h"
#include "money/AmountConventions.h"
#include "testsupport/Golden.h"
#include "testsupport/MessageLog.h"
#include "testsupport/QueryTexts.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

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

// What the stock sqlite3 shell prints for a statement on a file (its errors included).
QStringList shell(const QString &path, const QString &sql)
{
    QProcess sqlite;
    sqlite.start(QStringLiteral("sqlite3"), { path, sql });
    if (!sqlite.waitForFinished(20000))
        return { QStringLiteral("sqlite3 did not finish") };
    return QString::fromUtf8(sqlite.readAllStandardOutput() + sqlite.readAllStandardError())
        .split(u'\n', Qt::SkipEmptyParts);
}

// Every row of the five tables with its record number, as the shell prints them.
QStringList everyRow(const QString &path)
{
    QStringList rows;
    for (const char *table : { "genel", "carkart", "carhar", "defter", "duzen" })
        rows << shell(
            path, QStringLiteral("SELECT '%1', _rowid_, * FROM %1 ORDER BY _rowid_").arg(QLatin1String(table)));
    return rows;
}

// Files found where the books should be that the program must not write to.
enum class Found { Garbage, Text, OtherTables, ExtraColumn, DamagedPage };

} // namespace

Q_DECLARE_METATYPE(Found)

class TestDataFiles : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        ResetParameters();
        m_dir = std::make_unique<QTemporaryDir>();
        m_messages = std::make_unique<MessageLog>();
    }

    void cleanup()
    {
        CloseDataFiles();
        m_messages.reset();
        m_dir.reset();
    }

    void firstStartCreatesTheBook()
    {
        QVERIFY(OpenBooks(m_dir->path()));
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

    // Every table with its columns and indexes (an auto-number is the row number itself: no index).
    void schema()
    {
        SetProgramFolder(m_dir->path());
        QVERIFY(CreateDataFiles());
        QVERIFY(OpenDataFiles());
        QString schema;
        const QStringList tables = QueryTexts(
            QStringLiteral(
                "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT GLOB 'sqlite_*' ORDER BY name"),
            QStringLiteral("name"));
        for (const QString &table : tables) {
            schema += table + u'\n';
            for (const QString &column : columnsOf(table))
                schema += QStringLiteral("  ") + column + u'\n';
            for (const QString &index :
                QueryTexts(QStringLiteral("SELECT '  index ' || name || iif(\"unique\", ' unique', "
                                          "'') AS i FROM pragma_index_list(?1) ORDER BY name"),
                    QStringLiteral("i"), { table }))
                schema += index + u'\n';
        }
        COMPARE_GOLDEN(schema, "books/schema.txt");
    }

    void secondStartOpensTheSameFile()
    {
        QVERIFY(OpenBooks(m_dir->path()));
        GenelTxtSet(QStringLiteral("unvan"), QStringLiteral("Ayşe Yılmaz"));
        CloseDataFiles();
        ResetParameters();
        QVERIFY(OpenBooks(m_dir->path()));
        QCOMPARE(parameters().unvan, QStringLiteral("Ayşe Yılmaz"));
        QVERIFY(m_messages->entries().isEmpty());
    }

    void olderFileGetsItsIndexesAndOwnTable()
    {
        SetProgramFolder(m_dir->path());
        QVERIFY(CreateDataFiles());
        QVERIFY(OpenDataFiles());
        QVERIFY(SqlExecute(
            *dataFiles().db, QStringLiteral("INSERT INTO carhar (kod, islem, ba, tutar) VALUES ('K1', 1, 0, 5)")));
        for (const char *index : { "carhar_islemtarih", "carhar_kodbakiye" }) // as a file made before them
            QVERIFY(SqlExecute(*dataFiles().db, QStringLiteral("DROP INDEX ") + QString::fromLatin1(index)));
        QVERIFY(SqlExecute(*dataFiles().db, QStringLiteral("DROP TABLE makbuz")));
        QVERIFY(OpenDataFiles());
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM makbuz"), QStringLiteral("n")), QStringList { "0" });
        const QString indexes = QStringLiteral("SELECT name FROM pragma_index_list('carhar') ORDER BY name");
        QCOMPARE(QueryTexts(indexes, QStringLiteral("name")),
            QStringList({ "carhar_islemtarih", "carhar_kodbakiye", "carhar_kodtarih" }));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT kod || tutar AS r FROM carhar"), QStringLiteral("r")),
            QStringList { "K15" });
        QVERIFY(SqlExecute(*dataFiles().db, QStringLiteral("DROP INDEX makbuz_makbuzno"))); // made before it
        QVERIFY(OpenDataFiles());
        QCOMPARE(StoredRows(u"name FROM pragma_index_list('makbuz') ORDER BY name"_s),
            QStringList({ "makbuz_ettn", "makbuz_makbuzno" }));
    }

    void fileThatIsNotOursIsLeftAlone_data()
    {
        QTest::addColumn<Found>("found");
        QTest::addColumn<QString>("message");
        const QString foreign = QStringLiteral("Bu klasördeki xsmm.dat bu programın veri dosyası değil.\n"
                                               "Dosyaya hiçbir şey yazılmadı.");
        QTest::newRow("not a database") << Found::Garbage << foreign;
        QTest::newRow("text") << Found::Text << foreign;
        QTest::newRow("another program's tables of the same names") << Found::OtherTables << foreign;
        QTest::newRow("a column more") << Found::ExtraColumn << foreign;
        QTest::newRow("a damaged page") << Found::DamagedPage
                                        << QStringLiteral(
                                               "Veri dosyası (xsmm.dat) bozulmuş.\nDosyaya hiçbir şey yazılmadı.");
    }

    void fileThatIsNotOursIsLeftAlone()
    {
        QFETCH(Found, found);
        QFETCH(QString, message);
        const QString path = m_dir->filePath(QStringLiteral("xsmm.dat"));
        QVERIFY(makeFile(found, path));
        const QByteArray before = contents(path);
        QVERIFY(!OpenBooks(m_dir->path()));
        const QString newest = Backups::newest(); // the files made by the program itself were copied
        QCOMPARE(found == Found::ExtraColumn || found == Found::DamagedPage, !newest.isEmpty());
        const QString copyLine = newest.isEmpty()
            ? QString()
            : QStringLiteral("\nEn yeni yedek: %1\nGeri yüklemek için README dosyasına bakınız.").arg(newest);
        QCOMPARE(m_messages->texts(), QStringList { message + copyLine });
        QCOMPARE(contents(path), before);
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList { QStringLiteral("xsmm.dat") });
    }

    // The start is killed at random moments of the first start: afterwards there is either no book
    // or a whole one, and the next start opens it.
    void killsDuringTheFirstStartNeverBlockTheNext()
    {
        const QString starter = QCoreApplication::applicationDirPath() + QStringLiteral("/books_starter");
        QElapsedTimer clock;
        clock.start();
        QProcess whole;
        whole.start(starter, { m_dir->path() });
        QVERIFY(whole.waitForFinished());
        QCOMPARE(whole.exitCode(), 0);
        const int wholeRun = int(clock.elapsed());
        SetProgramFolder(m_dir->path());
        const auto firstStartAgain
            = [this] { return QFile::remove(dataFile()) && QDir(Backups::folder()).removeRecursively(); };
        QVERIFY(firstStartAgain());
        QRandomGenerator random(20261123);
        int interrupted = 0;
        for (int kill = 0; kill < 40; ++kill) {
            QProcess process;
            process.start(starter, { m_dir->path() });
            QVERIFY(process.waitForStarted());
            QThread::msleep(random.bounded(wholeRun + 1));
            process.kill();
            process.waitForFinished();
            if (!QFile::exists(dataFile()))
                ++interrupted;
            const QStringList said = startAndClose();
            QVERIFY2(said.isEmpty(), qPrintable(said.join(u'|')));
            QVERIFY(firstStartAgain());
        }
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList());
        QVERIFY2(interrupted > 0, "no kill came before the book was whole");
    }

    // Writing stops after a few kilobytes, as on a full disk: no book is left, and once there is
    // room again the next start makes one.
    void fullDiskLeavesNoBook()
    {
        rlimit before {};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        rlimit full = before;
        full.rlim_cur = 6000;
        const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
        const QStringList messages = startAndClose();
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, previousHandler);
        QCOMPARE(messages, QStringList({ "Genel \nSql Tablosu eklenemedi.", "Dosyalar Yaratılamıyor..." }));
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList());
        QCOMPARE(startAndClose(), QStringList());
        QVERIFY(QFile::exists(dataFile()));
    }

    void fileHeldByAnotherProgram_data()
    {
        QTest::addColumn<QString>("hold");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("another program writing") << u"BEGIN EXCLUSIVE"_s
                                                 << QStringList { "Veri dosyası başka bir program tarafından "
                                                                  "kullanılıyor.\nO programı kapatıp Serbest Meslek'i "
                                                                  "yeniden başlatınız." };
        QTest::newRow("another program reading") << u"BEGIN; SELECT count(*) FROM carhar"_s << QStringList {};
    }

    // Another program holds the file: a reader does not stop the start; a writer that does not let
    // go is named as such, and the file is neither created over nor changed.
    void fileHeldByAnotherProgram()
    {
        QFETCH(QString, hold);
        QFETCH(QStringList, messages);
        QCOMPARE(startAndClose(), QStringList());
        const QByteArray before = contents(dataFile());
        std::unique_ptr<Database> other = Database::open(dataFile());
        QVERIFY(other && other->run(hold));
        QCOMPARE(startAndClose(), messages);
        QCOMPARE(contents(dataFile()), before);
        QVERIFY(other->run(QStringLiteral("COMMIT")));
    }

    // Killed while it posts one transaction after another: every posting it reported as done is
    // in the file, and the file is whole.
    void killDuringPostingsLosesNoCommittedRow()
    {
        const QString starter = QCoreApplication::applicationDirPath() + QStringLiteral("/books_starter");
        QProcess process;
        process.start(starter, { m_dir->path(), QStringLiteral("10000") });
        QVERIFY(process.waitForStarted());
        const int killAt = QRandomGenerator::global()->bounded(200, 1500);
        int done = 0;
        while (done < killAt && process.waitForReadyRead(20000))
            while (process.canReadLine()) {
                const QByteArray line = process.readLine().trimmed();
                if (line.at(0) >= '0' && line.at(0) <= '9')
                    done = line.toInt();
            }
        QVERIFY(done >= killAt);
        ::kill(pid_t(process.processId()), SIGKILL);
        process.waitForFinished();
        while (process.canReadLine())
            done = std::max(done, process.readLine().trimmed().toInt());
        SetProgramFolder(m_dir->path());
        QVERIFY(OpenDataFiles());
        const int stored
            = QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")).value(0).toInt();
        QVERIFY2(stored == done || stored == done + 1,
            qPrintable(QStringLiteral("%1 reported, %2 stored").arg(done).arg(stored)));
        QCOMPARE(dataFiles().db->texts(QStringLiteral("PRAGMA integrity_check")), QStringList { QStringLiteral("ok") });
    }

    // Two copies of the program post at the same time: each waits for the other's moment of writing
    // instead of refusing the posting.
    void twoCopiesPostingAtOnceLoseNothing()
    {
        QCOMPARE(startAndClose(), QStringList());
        const QString starter = QCoreApplication::applicationDirPath() + QStringLiteral("/books_starter");
        QProcess first;
        QProcess second;
        for (QProcess *copy : { &first, &second })
            copy->start(starter, { m_dir->path(), QStringLiteral("400") });
        for (QProcess *copy : { &first, &second }) {
            QVERIFY(copy->waitForFinished(120000));
            QCOMPARE(copy->exitCode(), 0);
        }
        SetProgramFolder(m_dir->path());
        QVERIFY(OpenDataFiles());
        QCOMPARE(
            QueryTexts(QStringLiteral("SELECT count(*) AS n FROM carhar"), QStringLiteral("n")), QStringList { "800" });
    }

    // A copy at the start, none for further changes that day, one before the first change of the
    // next day; a copy put back in place of the books is opened with what it held.
    void copiesAtStartAndBeforeTheFirstChangeOfADay()
    {
        SetToday(QDate(2026, 11, 23));
        const auto copies = [] { return QDir(Backups::folder()).entryList({ QStringLiteral("*.dat") }, QDir::Files); };
        QVERIFY(OpenBooks(m_dir->path()));
        QCOMPARE(copies().size(), 1);
        QVERIFY(copies().first().startsWith(QStringLiteral("xsmm-2026-11-23-")));
        QVERIFY(AddAccountPosting({ QStringLiteral("K1"), QDate(2026, 11, 23), 1, {}, {}, 0, Currency::fromUnits(5) }));
        QCOMPARE(copies().size(), 1);
        SetToday(QDate(2026, 11, 24));
        QVERIFY(AddAccountPosting({ QStringLiteral("K1"), QDate(2026, 11, 24), 1, {}, {}, 0, Currency::fromUnits(7) }));
        QVERIFY(AddAccountPosting({ QStringLiteral("K1"), QDate(2026, 11, 24), 1, {}, {}, 0, Currency::fromUnits(9) }));
        SetToday(QDate());
        QCOMPARE(copies().size(), 2);
        QVERIFY(copies().last().startsWith(QStringLiteral("xsmm-2026-11-24-")));
        const QString newest = Backups::newest();
        QCOMPARE(newest, QDir(Backups::folder()).filePath(copies().last()));

        // Putting the copy back: the books as they were before the 24th's first change.
        CloseDataFiles();
        QVERIFY(QFile::remove(dataFile()));
        QVERIFY(QFile::copy(newest, dataFile()));
        QCOMPARE(startAndClose(), QStringList());
        QVERIFY(OpenDataFiles());
        QCOMPARE(QueryTexts(QStringLiteral("SELECT tutar || '' AS t FROM carhar"), QStringLiteral("t")),
            QStringList { "50000" });
        QCOMPARE(dataFiles().db->texts(QStringLiteral("PRAGMA integrity_check")), QStringList { QStringLiteral("ok") });
    }

    void missingBookWithCopiesAsksFirst_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::newRow("no: nothing is made") << false;
        QTest::newRow("yes: a new book") << true;
    }

    // The books have gone but copies of them are there: the start names the newest copy and makes a
    // new, empty book only when the user wants one.
    void missingBookWithCopiesAsksFirst()
    {
        QFETCH(bool, answer);
        QCOMPARE(startAndClose(), QStringList());
        QVERIFY(QFile::remove(dataFile()));
        m_messages->answerNext(answer);
        const QStringList messages = startAndClose();
        QCOMPARE(messages.size(), 1);
        QVERIFY(messages.first().startsWith(
            QStringLiteral("Veri dosyası (xsmm.dat) bulunamadı.\nEn yeni yedek: ") + Backups::folder()));
        QVERIFY(messages.first().endsWith(QStringLiteral("Yeni, boş bir defter açılsın mı?")));
        QCOMPARE(m_messages->entries().first().kind, Message::Kind::Question);
        QCOMPARE(QFile::exists(dataFile()), answer);
    }

    void oldCopiesAreThinnedOut_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("removed");
        QStringList days;
        for (int day = 1; day <= 14; ++day)
            days << QStringLiteral("xsmm-2026-11-%1-090000.dat").arg(day, 2, 10, QLatin1Char('0'));
        QTest::newRow("fourteen days of one month: the four oldest go") << days << QStringList { days.mid(0, 4) };
        QStringList months;
        for (int month = 0; month < 15; ++month) {
            const QDate first = QDate(2025, 8, 1).addMonths(month);
            months << QStringLiteral("xsmm-%1-100000.dat").arg(first.toString(QStringLiteral("yyyy-MM-dd")))
                   << QStringLiteral("xsmm-%1-180000.dat").arg(first.toString(QStringLiteral("yyyy-MM-dd")));
        }
        // Aug 2025 to Oct 2026, two a month: the ten newest (Jun 2026 on) and the later copy of each
        // month from Dec 2025 stay; the rest of the older months go.
        QStringList removed;
        for (int month = 0; month < 15; ++month)
            if (month < 4)
                removed << months.at(2 * month) << months.at(2 * month + 1);
            else if (month < 10)
                removed << months.at(2 * month);
        QTest::newRow("fifteen months") << months << removed;
        QStringList today = days.mid(9) << u"xsmm-kendi.dat"_s; // five earlier days, and a file not ours
        for (int run = 0; run < 12; ++run)
            today << QStringLiteral("xsmm-2026-11-20-1%1.dat").arg(run, 5, 10, QLatin1Char('0'));
        QTest::newRow("twelve copies of one day") << today << today.mid(6, 2); // the earlier days' copies stay
    }

    void oldCopiesAreThinnedOut()
    {
        QFETCH(QStringList, names);
        QFETCH(QStringList, removed);
        QCOMPARE(Backups::surplus(names, QDate(2026, 11, 20)), removed);
    }

    // The books the program made and used, read by the sqlite3 shell: the whole check passes, the
    // cards list by code and by title (in the shell's byte order), and the indexes answer.
    void standardToolsReadTheBooks()
    {
        QVERIFY(OpenBooks(m_dir->path()));
        GenelTxtSet(QStringLiteral("unvan"), QStringLiteral("Ayşe Yılmaz"));
        for (const auto &[code, title] : { std::pair { u"IŞIK", u"Işık Ltd." }, { u"C1", u"Çiçek Eczanesi" } }) {
            QVERIFY(RsAddNew(*dataFiles().carkart));
            FieldWrite(*dataFiles().carkart, QStringLiteral("kod"), QString::fromUtf16(code));
            FieldWrite(*dataFiles().carkart, QStringLiteral("unv"), QString::fromUtf16(title));
            QVERIFY(RsUpdate(*dataFiles().carkart));
        }
        QVERIFY(
            AddAccountPosting({ QStringLiteral("ışık"), QDate(2026, 11, 23), 2, {}, {}, 0, Currency::fromUnits(5) }));
        CloseDataFiles();

        QCOMPARE(shell(dataFile(), QStringLiteral("PRAGMA integrity_check")), QStringList { "ok" });
        QCOMPARE(
            shell(dataFile(), QStringLiteral("SELECT kod FROM carkart ORDER BY kod")), QStringList({ "C1", "IŞIK" }));
        QCOMPARE(shell(dataFile(), QStringLiteral("SELECT unv FROM carkart ORDER BY unv")),
            QStringList({ "Işık Ltd.", "Çiçek Eczanesi" }));
        QCOMPARE(
            shell(dataFile(), QStringLiteral("SELECT tutar FROM carhar WHERE kod = 'ışık'")), QStringList { "50000" });
        QCOMPARE(shell(dataFile(), QStringLiteral("SELECT txt FROM genel WHERE kod = 'unvan'")),
            QStringList { "Ayşe Yılmaz" });
    }

    void booksOfTheOwnCollationAreMadePlain_data()
    {
        QTest::addColumn<bool>("copyPossible");
        QTest::newRow("after a copy") << true;
        QTest::newRow("no copy, no change") << false;
    }

    // Books of the collation TR become plain ones on opening, row for row, after a copy of them; when
    // no copy can be made they stay as they were and the program works on them all the same.
    void booksOfTheOwnCollationAreMadePlain()
    {
        QFETCH(bool, copyPossible);
        QVERIFY(makeBookOfTheOwnCollation());
        const QStringList rows = everyRow(dataFile());
        QCOMPARE(rows.size(), 7);
        const QByteArray before = contents(dataFile());
        if (!copyPossible)
            QVERIFY(writeFile(m_dir->filePath(QStringLiteral("yedek")), "bir dosya")); // no folder for copies
        QCOMPARE(startAndClose(), QStringList());
        QCOMPARE(everyRow(dataFile()), rows);
        const QString declared = QStringLiteral("SELECT count(*) FROM sqlite_master WHERE sql LIKE '%COLLATE%'");
        if (copyPossible) {
            QCOMPARE(shell(dataFile(), QStringLiteral("PRAGMA integrity_check")), QStringList { "ok" });
            QCOMPARE(shell(dataFile(), declared), QStringList { "0" });
            const QDir copies(Backups::folder());
            const QString first
                = copies.filePath(copies.entryList({ QStringLiteral("*.dat") }, QDir::Files, QDir::Name).value(0));
            QCOMPARE(shell(first, declared), QStringList { "5" }); // the first copy: the books as they were
            QCOMPARE(
                shell(dataFile(), QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' ORDER BY name")),
                QStringList({ "carhar_islemtarih", "carhar_kodbakiye", "carhar_kodtarih", "carkart_kod",
                    "defter_islemcari", "defter_tarihislem", "genel_kod", "makbuz_ettn", "makbuz_makbuzno" }));
        } else {
            QCOMPARE(contents(dataFile()), before);
        }

        QVERIFY(OpenDataFiles());
        QVERIFY(CariExists(QStringLiteral("ışık")));
        QCOMPARE(AddAccountPosting({ QStringLiteral("C1"), QDate(2026, 11, 23), 1, {}, {}, 0, Currency::fromUnits(1) }),
            qint64(4)); // record numbers go on after the deleted one
    }

private:
    bool makeFile(Found kind, const QString &path)
    {
        switch (kind) {
        case Found::Garbage: {
            QByteArray garbage;
            for (int i = 0; i < 8192; ++i)
                garbage += char((i * 7919) % 251);
            return writeFile(path, garbage);
        }
        case Found::Text:
            return writeFile(path, "Bu bir veri dosyası değil.\r\n");
        case Found::OtherTables: {
            std::unique_ptr<Database> other = Database::create(path);
            return other
                && other->run(QStringLiteral("CREATE TABLE genel (a, b); CREATE TABLE carkart (a, b); "
                                             "CREATE TABLE carhar (a, b); CREATE TABLE defter (a, b); "
                                             "CREATE TABLE duzen (a, b);"));
        }
        case Found::ExtraColumn:
            SetProgramFolder(m_dir->path());
            return CreateDataFiles() && OpenDataFiles()
                && SqlExecute(*dataFiles().db, QStringLiteral("ALTER TABLE carkart ADD COLUMN eposta TEXT"))
                && (CloseDataFiles(), true);
        case Found::DamagedPage: {
            SetProgramFolder(m_dir->path());
            if (!CreateDataFiles() || !OpenDataFiles())
                return false;
            const bool filled = SqlExecute(*dataFiles().db,
                QStringLiteral("INSERT INTO carhar (kod, tarih, islem, ack, ba, tutar) WITH RECURSIVE n(i) AS "
                               "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000) SELECT 'K' || (i % 50), "
                               "46000 + i % 365, 1, 'Hareket açıklaması', i % 2, i * 10000 FROM n"));
            CloseDataFiles();
            if (!filled)
                return false;
            QFile file(path);
            // Fifty bytes of a page in the middle zeroed: the page still reads, its records do not add up.
            if (!file.open(QIODevice::ReadWrite) || !file.seek(file.size() / 4096 / 2 * 4096 + 4000))
                return false;
            return file.write(QByteArray(50, '\0')) == 50;
        }
        }
        return false;
    }

    // A book as the program made it while its text columns declared the collation TR, with
    // Turkish text, a deleted last transaction and a parameter.

    bool makeBookOfTheOwnCollation()
    {
        QTemporaryDir plain;
        SetProgramFolder(plain.path());
        if (!CreateDataFiles() || !OpenDataFiles())
            return false;
        const QStringList schema = dataFiles().db->texts(QStringLiteral(
            "SELECT sql FROM sqlite_master WHERE sql NOT NULL AND name <> 'sqlite_sequence' ORDER BY type DESC, name"));
        CloseDataFiles();
        SetProgramFolder(m_dir->path());
        std::unique_ptr<Database> old = Database::create(dataFile());
        if (!old)
            return false;
        for (QString sql : schema)
            if (!old->run(sql.replace(
                    QRegularExpression(QStringLiteral("(TEXT\\(\\d+\\))")), QStringLiteral("\\1 COLLATE TR"))))
                return false;
        return old->run(QStringLiteral(
            "INSERT INTO genel (kod, txt) VALUES ('unvan', 'Ayşe Yılmaz');"
            "INSERT INTO carkart (kod, unv, tip) VALUES ('IŞIK', 'Işık Ltd.', 0), ('C1', 'Çiçek', 1);"
            "INSERT INTO carhar (kod, tarih, islem, ba, tutar) VALUES ('ışık', 46000, 2, 0, 50000), "
            "('IŞIK', 46001, 1, 1, 20000), ('C1', 46002, 1, 0, 7);"
            "DELETE FROM carhar WHERE oto = 3;"
            "INSERT INTO defter (tarih, islem, cari, ack, brut, stopaj) VALUES (46000, 0, 'ışık', 'Danışmanlık', "
            "1000000, 200000);"
            "INSERT INTO duzen (no, uzun, sol, ust, txt) VALUES (1, 8, 2.5, 3, 'Sayın');"));
    }

    QString dataFile() const { return m_dir->filePath(QStringLiteral("xsmm.dat")); }
    // Opens the folder's books as a start does, then closes them; the messages it gave.

    QStringList startAndClose()
    {
        m_messages->clear();
        OpenBooks(m_dir->path());
        CloseDataFiles();
        return m_messages->texts();
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<MessageLog> m_messages;
};

QTEST_GUILESS_MAIN(TestDataFiles)
#include "tst_datafiles.moc"
