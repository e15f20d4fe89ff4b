#include "books/DataFiles.h"
#include "testsupport/BooksFixture.h"
#include "testsupport/EsmmSamples.h"
#include "testsupport/QueryTexts.h"

#include <QProcess>
#include <QtTest>

// The program itself, copied beside the books as a user keeps it, run with --esmm-aktar.
class TestEsmmCommand : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
        CloseDataFiles(); // the second program has the books
        // The program is built at the top of the build folder, two floors above this test.
        const QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/../../serbestmeslek");
        QVERIFY(QFile::copy(program, path(QStringLiteral("serbestmeslek"))));
    }

    void cleanup() { m_books.reset(); }

    void linesAndExitStatus()
    {
        QVERIFY(WriteZip(path(QStringLiteral("a.zip")),
            { { QStringLiteral("1.xml"), EsmmXml(NumberedEsmm(1)) },
                { QStringLiteral("2.xml"), EsmmXml(NumberedEsmm(2)) } }));
        QString out;
        QCOMPARE(run({ QStringLiteral("--esmm-aktar"), path(QStringLiteral("a.zip")) }, &out), 0);
        QCOMPARE(out,
            path(QStringLiteral("a.zip:1.xml"))
                + QStringLiteral("\tGIB2026000000001\t16.11.2026\t1,000.00\tAktarıldı (yeni cari E0000001)\n")
                + path(QStringLiteral("a.zip:2.xml"))
                + QStringLiteral("\tGIB2026000000002\t16.11.2026\t1,000.00\tAktarıldı\n2 Aktarıldı\n"));
        QVERIFY(QDir(path(QStringLiteral("yedek"))).removeRecursively());
        QCOMPARE(run({ QStringLiteral("--esmm-aktar"), path(QStringLiteral("a.zip")) }, &out), 0);
        QVERIFY2(out.endsWith(QStringLiteral("\n2 Kayıtlı\n")), qPrintable(out));
        QVERIFY(!QDir(path(QStringLiteral("yedek"))).exists()); // nothing posted, nothing copied
        QCOMPARE(run({ QStringLiteral("--esmm-aktar"), path(QStringLiteral("a.zip")), path(QStringLiteral("yok.xml")) },
                     &out),
            1);
        QVERIFY2(out.contains(QStringLiteral("yok.xml\t\t\t\tOkunamadı: dosya bulunamadı\n2 Kayıtlı, 1 Okunamadı\n")),
            qPrintable(out));
        QCOMPARE(counts(), QStringList({ "2|2|2", "ok" }));
        QCOMPARE(run({ QStringLiteral("--esmm-aktar") }, &out), 1); // no path
        QVERIFY(QDir().mkpath(path(QStringLiteral("bos"))));
        QCOMPARE(run({ QStringLiteral("--esmm-aktar"), path(QStringLiteral("bos")) }, &out), 1);
        QVERIFY2(out.endsWith(QStringLiteral("Belge bulunamadı\n")), qPrintable(out));
        QCOMPARE(run({ QStringLiteral("--help") }, &out), 0);
        QVERIFY(out.contains(QStringLiteral("--esmm-aktar YOL...")));
    }

    void booksAreNeverCreated()
    {
        QVERIFY(QFile::remove(m_books->dataFile()));
        QString out;
        QCOMPARE(run({ QStringLiteral("--esmm-aktar"), path(QStringLiteral("a.zip")) }, &out), 2);
        QVERIFY2(out.startsWith(QStringLiteral("Veri dosyası (xsmm.dat)")), qPrintable(out));
        QVERIFY(!QFile::exists(m_books->dataFile()));
    }

    void killedRunPostsAllOrNothing_data()
    {
        QTest::addColumn<int>("milliseconds");
        for (int ms : { 0, 5, 25 })
            QTest::newRow(qPrintable(QStringLiteral("%1 ms into the writing").arg(ms))) << ms;
    }

    // Killed while it writes, a run leaves every document of it posted or none; the file stays whole.
    void killedRunPostsAllOrNothing()
    {
        QFETCH(int, milliseconds);
        constexpr int documents = 1500;
        std::vector<std::pair<QString, QByteArray>> entries;
        for (int n = 1; n <= documents; ++n)
            entries.emplace_back(QStringLiteral("%1.xml").arg(n), EsmmXml(NumberedEsmm(n)));
        QVERIFY(WriteZip(path(QStringLiteral("cok.zip")), entries));
        QProcess program;
        program.start(
            path(QStringLiteral("serbestmeslek")), { QStringLiteral("--esmm-aktar"), path(QStringLiteral("cok.zip")) });
        QVERIFY(program.waitForStarted());
        const QString journal = m_books->dataFile() + QStringLiteral("-journal");
        QVERIFY(QTest::qWaitFor([&journal] { return QFile::exists(journal); }, 20000));
        QThread::msleep(ulong(milliseconds));
        program.kill();
        program.waitForFinished();
        const QStringList after = counts();
        QVERIFY2(after == QStringList({ "0|0|0", "ok" }) || after == QStringList({ "1500|1500|1500", "ok" }),
            qPrintable(after.join(u' ')));
    }

private:
    QString path(const QString &name) const { return m_books->path() + u'/' + name; }
    int run(const QStringList &arguments, QString *out = nullptr);
    QStringList counts();

    std::unique_ptr<BooksFixture> m_books;
};

int TestEsmmCommand::run(const QStringList &arguments, QString *out)
{
    QProcess program;
    program.start(path(QStringLiteral("serbestmeslek")), arguments);
    if (!program.waitForFinished(60000))
        return -1;
    if (out)
        *out = QString::fromUtf8(program.readAllStandardOutput());
    return program.exitCode();
}

// carhar, defter and makbuz rows, and whether the file is whole.
QStringList TestEsmmCommand::counts()
{
    if (!OpenDataFiles())
        return {};
    const QStringList found
        = StoredRows(QStringLiteral(
              "(SELECT count(*) FROM carhar), (SELECT count(*) FROM defter), (SELECT count(*) FROM makbuz)"))
        + dataFiles().db->texts(QStringLiteral("PRAGMA integrity_check"));
    CloseDataFiles();
    return found;
}

QTEST_GUILESS_MAIN(TestEsmmCommand)
#include "tst_esmmcommand.moc"
