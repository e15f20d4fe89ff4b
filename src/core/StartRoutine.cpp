#include "core/StartRoutine.h"

#include "core/Backups.h"
#include "core/DataFiles.h"
#include "core/MainWindow.h"
#include "core/Message.h"
#include "core/Parameters.h"
#include "core/ProgramScreens.h"
#include "core/SplashWindow.h"

#include <QCoreApplication>
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

StartRoutine::StartRoutine(int splashMilliseconds)
    : m_splashMilliseconds(splashMilliseconds)
{
}

StartRoutine::~StartRoutine() = default;

bool StartRoutine::run(const QString &programFolder)
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
    Backups::make(*dataFiles().db);
    LoadParameters();
    return true;
}

void StartRoutine::showSplash()
{
    m_splash = std::make_unique<SplashWindow>(m_splashMilliseconds);
    connect(m_splash.get(), &SplashWindow::timeUp, this, &StartRoutine::showMainWindow);
    m_splash->show();
}

void StartRoutine::showMainWindow()
{
    if (!m_mainWindow) {
        m_mainWindow = std::make_unique<MainWindow>();
        AddProgramScreens(*m_mainWindow);
        // Loading the main window unloads the splash.
        connect(m_mainWindow.get(), &MainWindow::shown, this, [this] {
            if (m_splash)
                m_splash.release()->deleteLater();
        });
    }
    m_mainWindow->show();
    QCoreApplication::processEvents();
}
