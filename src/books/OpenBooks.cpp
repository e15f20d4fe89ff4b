#include "books/OpenBooks.h"

#include "books/Backups.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "books/Parameters.h"

#include <QDir>

namespace {

// Where the newest copy of the books is, when there is one.
QString newestCopyText()
{
    const QString newest = Backups::newest();
    return newest.isEmpty() ? QString()
                            : QStringLiteral("\nEn yeni yedek: %1\nGeri yüklemek için README dosyasına bakınız.")
                                  .arg(QDir::toNativeSeparators(newest));
}

// The books are missing but copies of them exist: a new, empty book only if the user says so.
bool newBookWanted()
{
    const QString copy = newestCopyText();
    return copy.isEmpty()
        || Message::question(QStringLiteral("Veri dosyası (xsmm.dat) bulunamadı.") + copy
            + QStringLiteral("\nYeni, boş bir defter açılsın mı?"));
}

// What the user is told when the books do not open.
QString startFailureText(DataFileState state)
{
    switch (state) {
    case DataFileState::InUse:
        return QStringLiteral("Veri dosyası başka bir program tarafından kullanılıyor.\n"
                              "O programı kapatıp Serbest Meslek'i yeniden başlatınız.");
    case DataFileState::Foreign:
        return QStringLiteral("Bu klasördeki xsmm.dat bu programın veri dosyası değil.\n"
                              "Dosyaya hiçbir şey yazılmadı.")
            + newestCopyText();
    case DataFileState::Damaged:
        return QStringLiteral("Veri dosyası (xsmm.dat) bozulmuş.\nDosyaya hiçbir şey yazılmadı.") + newestCopyText();
    default:
        return QStringLiteral("Dosyalar Yaratılamıyor...");
    }
}

} // namespace

bool OpenBooks(const QString &programFolder, BooksCopy copy)
{
    SetStartConventions();
    SetProgramFolder(programFolder);

    DataFileState state = DataFileState::Failed;
    bool open = OpenDataFiles(&state);
    if (state == DataFileState::Missing && !newBookWanted())
        return false;
    if (!open && (state == DataFileState::Missing || state == DataFileState::Failed) && CreateDataFiles())
        open = OpenDataFiles(&state);
    if (!open) {
        CloseDataFiles();
        Message::exclamation(startFailureText(state));
        return false;
    }
    if (copy == BooksCopy::AtStart)
        Backups::make(*dataFiles().db);
    LoadParameters();
    return true;
}
