#include "books/Clock.h"
#include "books/DataFiles.h"
#include "books/Parameters.h"
#include "books/Postings.h"
#include "esmm/EsmmFiles.h"
#include "esmm/EsmmImport.h"
#include "money/AmountConventions.h"
#include "testsupport/Books.h"
#include "testsupport/BooksFixture.h"
#include "testsupport/EsmmSamples.h"
#include "testsupport/QueryTexts.h"

#include <QtTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

// GİB's worked example: gross 1,000.00, VAT 18 % = 180.00 of which the payer withholds 10 %,
// stopaj 25 % = 250.00.
SampleEsmm workedExample()
{
    SampleEsmm s;
    s.stopaj = QStringLiteral("250.00");
    s.stopajRate = QStringLiteral("25");
    s.kdv = QStringLiteral("180.00");
    s.kdvRate = QStringLiteral("18");
    s.withheld = QStringLiteral("18.00");
    s.withheldRate = QStringLiteral("10");
    s.taxes = QStringLiteral("412.00");
    s.total = QStringLiteral("1162.00");
    s.payable = QStringLiteral("912.00");
    return s;
}

QStringList postings()
{
    return StoredRows(
        QStringLiteral("h.kod, h.tarih, h.islem, h.ba, h.tutar, h.evrak, h.ack, d.cari, d.ack, d.brut, "
                       "d.stopaj, d.fon, d.kdv, m.tevkifat, m.tevkoran, m.makbuzno FROM makbuz m JOIN "
                       "carhar h ON h.oto = m.carhar JOIN defter d ON d.oto = m.defter ORDER BY m.defter"));
}

int rowsIn(const char *table)
{
    return QueryTexts(QStringLiteral("SELECT count(*) AS n FROM %1").arg(QLatin1String(table)), QStringLiteral("n"))
        .value(0)
        .toInt();
}

} // namespace

Q_DECLARE_METATYPE(SampleEsmm)

class TestEsmmImport : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_books = std::make_unique<BooksFixture>();
        QVERIFY(m_books->isReady());
    }

    void cleanup() { m_books.reset(); }

    void documentIsPostedAsAReceipt_data()
    {
        QTest::addColumn<SampleEsmm>("sample");
        QTest::addColumn<QString>("posted");
        QTest::newRow("worked example: 912.00 owed, VAT withheld kept")
            << workedExample()
            << u"E0000001|46342|2|0|9120000|00000001|Hukuki danışmanlık|E0000001|Alıcı Danışmanlık "_s
               "A.Ş.|10000000|2500000|0|"
               "1800000|180000|10|GIB2026000000001";
        QTest::newRow("today's rates: the gross is owed")
            << SampleEsmm()
            << u"E0000001|46342|2|0|10000000|00000001|Hukuki danışmanlık|E0000001|Alıcı Danışmanlık "_s
               "A.Ş.|10000000|2000000|0|"
               "2000000|0|0|GIB2026000000001";
    }

    void documentIsPostedAsAReceipt()
    {
        QFETCH(SampleEsmm, sample);
        QFETCH(QString, posted);
        const EsmmImport run = importPaths({ write(QStringLiteral("makbuz.xml"), EsmmXml(sample)) });
        QCOMPARE(run.rows().size(), size_t(1));
        QCOMPARE(run.rows().front().statusText(), QStringLiteral("Aktarıldı (yeni cari E0000001)"));
        QCOMPARE(postings(), QStringList { posted });
        QCOMPARE(StoredRows(u"kod, unv, vd, vn, tip FROM carkart"_s),
            QStringList { "E0000001|Alıcı Danışmanlık A.Ş.|Çankaya|2222222222|0" });
    }

    void kurusNeedBooksThatKeepThem_data()
    {
        QTest::addColumn<int>("decimals"); // "TL Onda"
        QTest::addColumn<QStringList>("owed");
        QTest::newRow("books of whole lira: nothing posted, nothing rounded") << 0 << QStringList();
        QTest::newRow("books of kuruş: posted as issued") << 2 << QStringList { "12345700" };
    }

    void kurusNeedBooksThatKeepThem()
    {
        QFETCH(int, decimals);
        QFETCH(QStringList, owed);
        amountConventions().tlonda = decimals;
        SampleEsmm kurus;
        kurus.gross = kurus.payable = QStringLiteral("1234.57");
        kurus.stopaj = kurus.kdv = QStringLiteral("246.91");
        kurus.total = QStringLiteral("1481.48");
        kurus.taxes = QStringLiteral("493.82");
        EsmmImport run;
        run.read({ write(QStringLiteral("k.xml"), EsmmXml(kurus)) });
        QString why;
        QCOMPARE(run.post(&why), !owed.isEmpty());
        QCOMPARE(why.contains(u"\"TL Onda\""), owed.isEmpty());
        QCOMPARE(StoredRows(u"tutar FROM carhar"_s), owed);
    }

    void heldBackDocumentsPostNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("holder"); // the tax number in "Ayarlar"
        QTest::addColumn<QString>("status");
        const auto payable = [](const QString &amount) {
            SampleEsmm sample;
            sample.payable = amount;
            return EsmmXml(sample);
        };
        const auto sized = [](qint64 size) {
            const QByteArray xml = EsmmXml(SampleEsmm());
            return xml + QByteArray(size - xml.size(), ' ');
        };
        const auto dated = [](QDate date) {
            SampleEsmm sample;
            sample.date = date;
            return EsmmXml(sample);
        };
        SampleEsmm dollars;
        dollars.currency = QStringLiteral("USD");
        SampleEsmm otherTax;
        otherTax.otherTaxCode = QStringLiteral("0059");
        QTest::newRow("does not add up") << payable(u"1100.00"_s) << u""_s
                                         << u"Uyuşmuyor: ödenecek tutar 1,100.00, hesaplanan 1,000.00"_s;
        QTest::newRow("within a kuruş it adds up")
            << payable(u"1000.01"_s) << u""_s << u"Aktarıldı (yeni cari E0000001)"_s;
        QTest::newRow("amounts below a lira")
            << payable(u"0.13"_s) << u""_s << u"Uyuşmuyor: ödenecek tutar 0.13, hesaplanan 1,000.00"_s;
        QTest::newRow("two kuruş off") << payable(u"999.98"_s) << u""_s
                                       << u"Uyuşmuyor: ödenecek tutar 999.98, hesaplanan 1,000.00"_s;
        QTest::newRow("4 MB") << sized(MaxEsmmBytes) << u""_s << u"Aktarıldı (yeni cari E0000001)"_s;
        QTest::newRow("past 4 MB") << sized(MaxEsmmBytes + 1) << u""_s << u"Okunamadı: belge 4 MB'tan büyük"_s;
        QTest::newRow("a day that does not exist") << EsmmXml(SampleEsmm()).replace("2026-11-16", "2026-02-30") << u""_s
                                                   << u"Uyuşmuyor: belge tarihi geçersiz (2026-02-30)"_s;
        const QDate tomorrow = Today().addDays(1);
        QTest::newRow("after today") << dated(tomorrow) << u""_s
                                     << u"Uyuşmuyor: belge tarihi ileride (%1)"_s.arg(tomorrow.toString(u"dd.MM.yyyy"));
        const QByteArray early = dated(QDate(2019, 10, 18));
        QTest::newRow("before e-SMMs") << early << u""_s << u"Uyuşmuyor: belge tarihi ilk e-SMM gününden önce"_s;
        QTest::newRow("their first day") << dated(QDate(2019, 10, 19)) << u""_s << u"Aktarıldı (yeni cari E0000001)"_s;
        const auto accrual = [](const char *value) {
            return EsmmXml(SampleEsmm())
                .replace("<paraBirimi>", QByteArray("<kdvTahakkukIcin>") + value + "</kdvTahakkukIcin><paraBirimi>");
        };
        QTest::newRow("for the VAT alone") << accrual(
            "true") << u""_s << u"Uyuşmuyor: yalnız KDV tahakkuku için düzenlenmiş; ücreti tahsil edince giriniz"_s;
        QTest::newRow("not for the VAT alone") << accrual("false") << u""_s << u"Aktarıldı (yeni cari E0000001)"_s;
        QByteArray halfVat = EsmmXml(SampleEsmm()); // the document's own VAT 10 %, its line's 20 %
        const QByteArray lineVat = "<vergiKodu>0015</vergiKodu><vergiTutari>200.00</vergiTutari><vergiOrani>20";
        halfVat.replace(halfVat.indexOf(lineVat), lineVat.size(), QByteArray(lineVat).replace("200.00", "100.00"));
        QTest::newRow("the document's VAT is not its lines'")
            << halfVat << u""_s << u"Uyuşmuyor: belgenin KDV'si 100.00, satırlarınki 200.00"_s;
        SampleEsmm noShare;
        noShare.withheld = QStringLiteral("18.00");
        noShare.withheldRate = QStringLiteral("0");
        noShare.payable = QStringLiteral("982.00");
        noShare.total = QStringLiteral("1182.00");
        noShare.taxes = QStringLiteral("382.00");
        QTest::newRow("VAT withheld at no share")
            << EsmmXml(noShare) << u""_s << u"Uyuşmuyor: tevkifat 18.00; oranı %0, KDV 200.00"_s;
        QByteArray twoReceipts = EsmmXml(SampleEsmm());
        const qsizetype from = twoReceipts.indexOf("<serbestMeslekMakbuz>"), to = twoReceipts.indexOf("</eArsivVeri>");
        twoReceipts.insert(to, twoReceipts.mid(from, to - from));
        QTest::newRow("two receipts in one file")
            << twoReceipts << u""_s << u"Okunamadı: dosyada birden çok makbuz var"_s;
        SampleEsmm unnamed;
        unnamed.ettn.clear();
        QTest::newRow("no ETTN") << EsmmXml(unnamed) << u""_s << u"Eksik: ETTN yok"_s;
        QTest::newRow("another currency") << EsmmXml(dollars) << u""_s << u"Döviz: USD"_s;
        QTest::newRow("a tax the books do not know")
            << EsmmXml(otherTax) << u""_s << u"Uyuşmuyor: tanınmayan vergi kodu 0059"_s;
        QTest::newRow("another issuer") << EsmmXml(SampleEsmm()) << u"9999999999"_s
                                        << u"Uyuşmuyor: düzenleyen 1111111111, defterin sahibi 9999999999"_s;
        QTest::newRow("the holder's own")
            << EsmmXml(SampleEsmm()) << u"1111111111"_s << u"Aktarıldı (yeni cari E0000001)"_s;
        QTest::newRow("another XML") << QByteArray("<?xml version=\"1.0\"?><Invoice xmlns=\"urn:x\"/>") << u""_s
                                     << u"Okunamadı: e-SMM değil"_s;
        QTest::newRow("garbage") << QByteArray("\x89PNG\r\n\x1a\n garbage") << u""_s
                                 << u"Okunamadı: XML hatası (satır 1)"_s;
        QTest::newRow("empty file") << QByteArray() << u""_s << u"Okunamadı: boş dosya"_s;
        QTest::newRow("entity expansion")
            << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE a [<!ENTITY b \"bbbbbbbb\">"
                          "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;\">]><eArsivVeri>&c;</eArsivVeri>")
            << u""_s << u"Okunamadı: belge tür tanımı (DTD) içeriyor"_s;
    }

    void heldBackDocumentsPostNothing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, holder);
        QFETCH(QString, status);
        parameters().vergino = holder;
        const EsmmImport run = importPaths({ write(QStringLiteral("belge.xml"), bytes) });
        QCOMPARE(run.rows().size(), size_t(1));
        QCOMPARE(run.rows().front().statusText(), status);
        const bool posted = status.startsWith(QStringLiteral("Aktarıldı"));
        QCOMPARE(rowsIn("carhar") + rowsIn("defter") + rowsIn("makbuz") + rowsIn("carkart"), posted ? 4 : 0);
    }

    // The same documents in a ZIP file and in a folder, twice: each is posted once.
    void eachDocumentIsPostedOnce()
    {
        std::vector<std::pair<QString, QByteArray>> entries;
        for (int n = 1; n <= 3; ++n)
            entries.emplace_back(QStringLiteral("e-smm/%1.xml").arg(n), EsmmXml(NumberedEsmm(n)));
        entries.emplace_back(QStringLiteral("e-smm/1.pdf"), QByteArray("%PDF")); // the portal's other files
        const QString zip = m_books->path() + QStringLiteral("/belgeler/indirilen.zip");
        QVERIFY(!write(QStringLiteral("tek/2.xml"), EsmmXml(NumberedEsmm(2))).isEmpty());
        QVERIFY(WriteZip(zip, entries));
        const QString folder = m_books->path() + QStringLiteral("/belgeler");
        EsmmImport first = importPaths({ zip, folder });
        // the folder holds the ZIP (listed once) and 2.xml again; the PDF has its line
        QCOMPARE(first.summary(), QStringLiteral("1 Kayıtlı, 3 Aktarıldı, 1 Atlandı"));
        QCOMPARE(rowsIn("carhar"), 3);
        QCOMPARE(first.rows().front().origin, zip + QStringLiteral(":e-smm/1.xml"));
        EsmmImport second = importPaths({ folder });
        QCOMPARE(second.summary(), QStringLiteral("4 Kayıtlı, 1 Atlandı"));
        QCOMPARE(rowsIn("carhar") + rowsIn("defter") + rowsIn("makbuz"), 9);
        QCOMPARE(rowsIn("carkart"), 1); // one payer
    }

    void secondCopiesThatDifferAreConflicts_data()
    {
        QTest::addColumn<SampleEsmm>("second");
        QTest::addColumn<bool>("sameRun"); // else the first is in the books already
        QTest::addColumn<QString>("status");
        SampleEsmm later = NumberedEsmm(1);
        later.date = QDate(2026, 11, 17);
        SampleEsmm renamed = NumberedEsmm(1);
        renamed.ettn = QStringLiteral("6f1c2a4e-0000-4000-8000-000000000099");
        const QString taken = u"Çakışma: GIB2026000000001 numaralı makbuz başka bir ETTN ile "
                              "(6f1c2a4e-0000-4000-8000-000000000001) var"_s;
        QTest::newRow("its date, in the books") << later << false << u"Çakışma: aynı ETTN, farklı tarih"_s;
        QTest::newRow("its date, in one run") << later << true << u"Çakışma: aynı ETTN, farklı tarih"_s;
        QTest::newRow("its ETTN, in the books") << renamed << false << taken;
        QTest::newRow("its ETTN, in one run") << renamed << true << taken;
    }

    void secondCopiesThatDifferAreConflicts()
    {
        QFETCH(SampleEsmm, second);
        QFETCH(bool, sameRun);
        QFETCH(QString, status);
        const QString first = write(QStringLiteral("1.xml"), EsmmXml(NumberedEsmm(1)));
        const QString again = write(QStringLiteral("2.xml"), EsmmXml(second));
        if (!sameRun)
            importPaths({ first });
        const EsmmImport run = importPaths(sameRun ? QStringList { first, again } : QStringList { again });
        QCOMPARE(run.rows().back().statusText(), status);
        QCOMPARE(rowsIn("makbuz"), 1);
    }

    void failedPostingSaysWhy_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("mended");
        QTest::addColumn<QString>("why");
        QTest::newRow("read-only books") << u"PRAGMA query_only = 1"_s << u"PRAGMA query_only = 0"_s
                                         << u"Aktarım başlatılamadı (veri dosyasına yazılamıyor)"_s;
        QTest::newRow("a row refused")
            << u"CREATE TEMP TRIGGER t BEFORE INSERT ON defter BEGIN SELECT RAISE(ABORT, 'ret'); END"_s
            << u"DROP TRIGGER temp.t"_s << u"GIB2026000000001 kaydedilemedi (ret)"_s;
    }

    // A posting that fails says why, its rows say they were not posted, and a second try posts them.
    void failedPostingSaysWhy()
    {
        QFETCH(QString, fault);
        QFETCH(QString, mended);
        QFETCH(QString, why);
        EsmmImport run;
        run.read({ write(QStringLiteral("1.xml"), EsmmXml(SampleEsmm())) });
        QVERIFY(dataFiles().db->run(fault));
        QString said;
        QVERIFY(!run.post(&said));
        QCOMPARE(said, why + QStringLiteral("; hiçbir belge aktarılmadı."));
        QCOMPARE(run.rows().front().statusText(), QStringLiteral("Yeni: aktarılmadı"));
        QCOMPARE(rowsIn("carhar") + rowsIn("defter") + rowsIn("makbuz") + rowsIn("carkart"), 0);
        QVERIFY(dataFiles().db->run(mended));
        QVERIFY(run.post(&said));
        QCOMPARE(run.rows().front().statusText(), QStringLiteral("Aktarıldı (yeni cari E0000001)"));
    }

    void deletedReceiptsCanComeAgain_data()
    {
        QTest::addColumn<bool>("fromLedger"); // else from the account transactions
        QTest::addColumn<bool>("ledgerRowAloneFirst"); // as an earlier version deleted it
        QTest::newRow("its ledger row") << true << false;
        QTest::newRow("its account row") << false << false;
        QTest::newRow("its account row, the ledger row gone before") << false << true;
    }

    // An imported receipt's rows go together, and the document can then be imported again.
    void deletedReceiptsCanComeAgain()
    {
        QFETCH(bool, fromLedger);
        QFETCH(bool, ledgerRowAloneFirst);
        const QString document = write(QStringLiteral("1.xml"), EsmmXml(SampleEsmm()));
        QCOMPARE(importPaths({ document }).summary(), QStringLiteral("1 Aktarıldı"));
        if (ledgerRowAloneFirst) {
            QVERIFY(dataFiles().db->run(QStringLiteral("DELETE FROM defter")));
            QCOMPARE(importPaths({ document }).rows().front().statusText(),
                QStringLiteral(
                    "Kayıtlı: defter satırı silinmiş; hesap satırıyla birlikte silinince yeniden aktarılabilir"));
        }
        QVERIFY(DeletePosting(fromLedger ? PostingBook::Ledger : PostingBook::Accounts, 1));
        QCOMPARE(rowsIn("carhar") + rowsIn("defter") + rowsIn("makbuz"), 0);
        QCOMPARE(importPaths({ document }).summary(), QStringLiteral("1 Aktarıldı"));
    }

    void theSameEttnWrittenOtherwiseIsKnown_data()
    {
        QTest::addColumn<QString>("ettn");
        QTest::addColumn<bool>("keptInBraces"); // as books of an earlier version kept a braced one
        QTest::newRow("capitals") << u"6F1C2A4E-0000-4000-8000-000000000001"_s << false;
        QTest::newRow("braces and blanks") << u" {6f1c2a4e-0000-4000-8000-000000000001} "_s << false;
        QTest::newRow("kept in braces") << u"6f1c2a4e-0000-4000-8000-000000000001"_s << true;
    }

    void theSameEttnWrittenOtherwiseIsKnown()
    {
        QFETCH(QString, ettn);
        QFETCH(bool, keptInBraces);
        QCOMPARE(importPaths({ write(QStringLiteral("1.xml"), EsmmXml(SampleEsmm())) }).summary(),
            QStringLiteral("1 Aktarıldı"));
        if (keptInBraces)
            QVERIFY(dataFiles().db->run(QStringLiteral("UPDATE makbuz SET ettn = '{' || ettn || '}'")));
        SampleEsmm again;
        again.ettn = ettn;
        QCOMPARE(
            importPaths({ write(QStringLiteral("2.xml"), EsmmXml(again)) }).summary(), QStringLiteral("1 Kayıtlı"));
    }

    void payersAreFoundByTaxNumber()
    {
        QVERIFY(AddCard(QStringLiteral("E0000001"), QStringLiteral("Başka"), QStringLiteral("5555555555")));
        QVERIFY(AddCard(QStringLiteral("M1"), QStringLiteral("Bilinen Müşteri"), QStringLiteral(" 2222222222 ")));
        SampleEsmm stranger = NumberedEsmm(2);
        stranger.payerId = QStringLiteral("33333333333"); // a person's tckn
        const EsmmImport run = importPaths({ write(QStringLiteral("1.xml"), EsmmXml(NumberedEsmm(1))),
            write(QStringLiteral("2.xml"), EsmmXml(stranger)),
            write(QStringLiteral("3.xml"), EsmmXml(NumberedEsmm(3, stranger))) });
        QCOMPARE(run.rows()[0].statusText(), QStringLiteral("Aktarıldı"));
        QCOMPARE(run.rows()[1].statusText(), QStringLiteral("Aktarıldı (yeni cari E0000002)")); // E0000001 is taken
        QCOMPARE(run.rows()[2].statusText(), QStringLiteral("Aktarıldı"));
        QCOMPARE(QueryTexts(QStringLiteral("SELECT kod AS r FROM carhar ORDER BY oto"), QStringLiteral("r")),
            QStringList({ "M1", "E0000002", "E0000002" }));
    }

    void zipEntriesAreCounted_data()
    {
        QTest::addColumn<qint64>("entries");
        QTest::addColumn<QString>("status");
        QTest::newRow("as many as may be") << MaxZipEntries << u"Aktarıldı (yeni cari E0000001)"_s;
        QTest::newRow("one more") << MaxZipEntries + 1
                                  << u"Okunamadı: ZIP dosyalarında toplam 100000'den fazla girdi var"_s;
    }

    void zipEntriesAreCounted()
    {
        QFETCH(qint64, entries);
        QFETCH(QString, status);
        std::vector<std::pair<QString, QByteArray>> files { { QStringLiteral("belge.xml"), EsmmXml(SampleEsmm()) } };
        for (qint64 n = 1; n < entries; ++n)
            files.emplace_back(QStringLiteral("%1/").arg(n), QByteArray()); // folders: passed over quietly
        const QString zip = m_books->path() + QStringLiteral("/belgeler/toplu.zip");
        QDir().mkpath(QFileInfo(zip).path());
        QVERIFY(WriteZip(zip, files));
        const EsmmImport run = importPaths({ zip });
        QCOMPARE(run.rows().size(), size_t(1));
        QCOMPARE(run.rows().front().statusText(), status);
    }

    // The portal's bulk download: a ZIP of per-document ZIPs, each with the document and its view;
    // archivers' clutter passed over quietly; ZIPs no deeper than the limit.
    void zipsInsideZips_data()
    {
        QTest::addColumn<int>("depth"); // of the deepest ZIP file
        QTest::addColumn<QStringList>("statuses");
        QTest::newRow("documents in their own ZIPs")
            << 2
            << QStringList { "Aktarıldı (yeni cari E0000001)", "Atlandı: e-SMM ya da ZIP dosyası değil", "Aktarıldı" };
        QTest::newRow("deeper than the limit") << MaxZipDepth
                + 1 << QStringList { "Okunamadı: ZIP dosyası 3 kattan derinde", "Aktarıldı (yeni cari E0000001)" };
    }

    void zipsInsideZips()
    {
        QFETCH(int, depth);
        QFETCH(QStringList, statuses);
        QByteArray inner = ZipBytes({ { u"1.xml"_s, EsmmXml(NumberedEsmm(1)) }, { u"1.html"_s, "<html/>" },
            { u"__MACOSX/._1.xml"_s, "\0\5\26\7" }, { u".DS_Store"_s, "x" } });
        const QByteArray second = ZipBytes(
            { { u"2.xml"_s, EsmmXml(NumberedEsmm(2)) }, { u"._2.xml"_s, "\0\5\26\7" }, { u"Thumbs.db"_s, "x" } });
        for (int level = 2; level < depth; ++level)
            inner = ZipBytes({ { u"ic.zip"_s, inner } });
        const QString zip
            = write(QStringLiteral("toplu.zip"), ZipBytes({ { u"1.zip"_s, inner }, { u"2.zip"_s, second } }));
        const EsmmImport run = importPaths({ zip });
        QStringList found;
        for (const EsmmRow &row : run.rows())
            found << row.statusText();
        QCOMPARE(found, statuses);
    }

    // A FIFO named on the command line, a link to a device in a folder: refused before reading.
    void onlyRegularFilesAreRead()
    {
        const QString folder = m_books->path() + QStringLiteral("/belgeler");
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder + QStringLiteral("/sonsuz.xml")));
        const QString fifo = m_books->path() + QStringLiteral("/boru.xml");
        QVERIFY(mkfifo(QFile::encodeName(fifo).constData(), 0600) == 0);
        const EsmmImport run = importPaths({ fifo, folder });
        QCOMPARE(run.rows().size(), size_t(2));
        for (const EsmmRow &row : run.rows())
            QCOMPARE(row.statusText(), QStringLiteral("Okunamadı: düzenli bir dosya değil"));
    }

    void hostileZipFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("status");
        QTest::newRow("truncated") << QByteArray() << u"Okunamadı: ZIP dosyası okunamadı (bozuk ya da eksik)"_s;
        QTest::newRow("an entry of 5 MB") << QByteArray(5 * 1024 * 1024, ' ') << u"Okunamadı: belge 4 MB'tan büyük"_s;
    }

    // A damaged ZIP file and an entry that would take too much memory are refused, the rest of the
    // run goes on; names that climb out of the folder write nothing anywhere.
    void hostileZipFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, status);
        const QString zip = m_books->path() + QStringLiteral("/belgeler/a.zip");
        QDir().mkpath(QFileInfo(zip).path());
        QVERIFY(
            WriteZip(zip, { { QStringLiteral("../../kacak.xml"), bytes.isEmpty() ? EsmmXml(SampleEsmm()) : bytes } }));
        if (bytes.isEmpty()) {
            QFile file(zip);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.resize(file.size() / 2));
        }
        const EsmmImport run = importPaths({ zip, write(QStringLiteral("b.xml"), EsmmXml(SampleEsmm())) });
        QCOMPARE(run.rows().size(), size_t(2));
        QCOMPARE(run.rows()[0].statusText(), status);
        QCOMPARE(run.rows()[1].statusText(), QStringLiteral("Aktarıldı (yeni cari E0000001)"));
        QVERIFY(!QFile::exists(m_books->path() + QStringLiteral("/kacak.xml")));
    }

private:
    QString write(const QString &name, const QByteArray &bytes);
    EsmmImport importPaths(const QStringList &paths);

    std::unique_ptr<BooksFixture> m_books;
};

QString TestEsmmImport::write(const QString &name, const QByteArray &bytes)
{
    const QString path = m_books->path() + QStringLiteral("/belgeler/") + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return QString();
    return path;
}

EsmmImport TestEsmmImport::importPaths(const QStringList &paths)
{
    EsmmImport run;
    run.read(paths);
    QString why;
    if (!run.post(&why))
        qWarning("%s", qPrintable(why));
    return run;
}

QTEST_GUILESS_MAIN(TestEsmmImport)
#include "tst_esmmimport.moc"
