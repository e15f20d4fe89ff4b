#include "app/EsmmCommand.h"

#include "books/DataFiles.h"
#include "books/OpenBooks.h"
#include "esmm/EsmmImport.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

int RunEsmmCommand(const QString &programFolder, const QStringList &paths, QTextStream &out)
{
    if (!QFileInfo::exists(QDir(programFolder).filePath(QStringLiteral("xsmm.dat")))) {
        out << QStringLiteral("Veri dosyası (xsmm.dat) %1 klasöründe yok; hiçbir şey yapılmadı.\n")
                   .arg(QDir::toNativeSeparators(programFolder));
        return 2;
    }
    if (!OpenBooks(programFolder, BooksCopy::BeforeChange))
        return 2;
    EsmmImport run;
    run.read(paths);
    QString why;
    const bool posted = run.post(&why);
    for (const EsmmRow &row : run.rows())
        out << row.origin << '\t' << row.document.makbuzNo << '\t' << row.document.date.toString(u"dd.MM.yyyy") << '\t'
            << (row.document.gross == Currency() ? QString() : EsmmAmountText(row.document.gross)) << '\t'
            << row.statusText() << '\n';
    if (!posted)
        out << why << '\n';
    out << run.summary() << '\n';
    CloseDataFiles();
    // Every document found was posted, or was in the books already.
    const int documents = int(run.rows().size()) - run.count(EsmmStatus::Skipped);
    const bool clean
        = posted && documents > 0 && run.count(EsmmStatus::Posted) + run.count(EsmmStatus::Known) == documents;
    return clean ? 0 : 1;
}

QString CommandLineHelp()
{
    return QStringLiteral("Kullanım: serbestmeslek [--esmm-aktar YOL...]\n"
                          "  (seçeneksiz)           programı açar; veri dosyası (xsmm.dat) programın klasöründedir\n"
                          "  --esmm-aktar YOL...    e-SMM belgelerini (XML, ZIP ya da klasör) pencere açmadan\n"
                          "                         deftere aktarır; çıkış durumu 0: hepsi aktarıldı ya da zaten\n"
                          "                         kayıtlı, 1: tutmayan ya da okunamayan belge var ya da hiç belge\n"
                          "                         bulunamadı, 2: veri dosyası açılamadı\n"
                          "  --help                 bu açıklama\n");
}
