#include "app/MainWindow.h"

#include "app/ProgramArt.h"
#include "books/Parameters.h"
#include "controls/OpenInMain.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

namespace {

struct MenuEntry
{
    const char16_t *name;
    const char16_t *caption; // "-" is a separator line
};

struct TopMenu
{
    const char16_t *name;
    const char16_t *caption;
    std::vector<MenuEntry> entries;
};

const std::vector<TopMenu> &menuLayout()
{
    static const std::vector<TopMenu> menus = {
        { u"mnucari", u"&Cari",
            { { u"mnucarkart", u"Cari &Kartlar" }, { u"mnubos1", u"-" }, { u"mnucarhar", u"Cari &Hareketler" },
                { u"mnubos2", u"-" }, { u"mnucareks", u"Cari Hareket Dökümü" }, { u"mnubos71", u"-" },
                { u"mnugbor", u"Genel &Borç Alacak Listesi" } } },
        { u"mnuislem", u"&Işlemler",
            { { u"mnukasa", u"Kasa" }, { u"mnubos7", u"-" }, { u"mnumkb", u"Serbest Meslek &Makbuzu" },
                { u"mnubos4", u"-" }, { u"mnuemanet", u"&Emanet Makbuzu" }, { u"mnubos11", u"-" },
                { u"mnuesmm", u"e-SMM &Aktar" } } },
        { u"mnudefter", u"&Defter",
            { { u"mnusdef", u"Serbest Meslek Defteri" }, { u"mnubos6", u"-" }, { u"mnukdv", u"Kdv, Stopaj Raporu" },
                { u"mnubos10", u"-" }, { u"mnustoplst", u"Stopaj Listesi" }, { u"mnubos8", u"-" },
                { u"mnuresmi", u"Resmi Defter Çekimi" } } },
        { u"mnuayar", u"Ayar",
            { { u"mnuayarlar", u"Ayarlar" }, { u"mnubos9", u"-" }, { u"mnudiz", u"Makbuz Dizayn" } } },
    };
    return menus;
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_area(new QMdiArea(this))
{
    setObjectName(QStringLiteral("anamenu"));
    setWindowTitle(QStringLiteral("Serbest Meslek "));
    setWindowIcon(ProgramIcon());
    m_area->setObjectName(QStringLiteral("ekran"));
    m_area->setAccessibleName(QStringLiteral("Ekranlar"));
    m_area->setBackground(palette().dark());
    setCentralWidget(m_area);
    SetMainArea(m_area);
    buildMenu();
    buildSettingsNotice();
    resize(1024, 720);
}

// The work area closes its screens while the window is taken down; their going must not reach
// the window then.
MainWindow::~MainWindow()
{
    m_area->disconnect(this);
}

// Until "Ayarlar" is saved once, amounts are read with no decimals and the rates are 0: the
// status bar says so and leads there. It is looked at again whenever a screen comes or goes.
void MainWindow::buildSettingsNotice()
{
    m_settingsNotice = new QLabel(
        QStringLiteral("Ayarlar henüz kaydedilmedi: TL ondalık hanesi ve KDV, stopaj, fon oranları için Ayarlar "
                       "ekranını açıp kaydediniz."),
        this);
    m_settingsNotice->setObjectName(QStringLiteral("ayarnotu"));
    m_settingsNotice->setAccessibleName(m_settingsNotice->text());
    auto *open = new QPushButton(QStringLiteral("Ayarlar..."), this);
    open->setObjectName(QStringLiteral("ayarac"));
    open->setAccessibleName(QStringLiteral("Ayarlar"));
    connect(open, &QPushButton::clicked, this, [this] { this->open(QStringLiteral("mnuayarlar")); });
    statusBar()->addWidget(m_settingsNotice, 1);
    statusBar()->addWidget(open);
    m_settingsButton = open;
    connect(m_area, &QMdiArea::subWindowActivated, this, &MainWindow::showSettingsNotice);
}

void MainWindow::showSettingsNotice()
{
    const bool saved = ParametersSaved();
    m_settingsNotice->setVisible(!saved);
    m_settingsButton->setVisible(!saved);
}

void MainWindow::showEvent(QShowEvent *event)
{
    showSettingsNotice();
    QMainWindow::showEvent(event);
    emit shown();
}

void MainWindow::buildMenu()
{
    for (const TopMenu &top : menuLayout()) {
        QMenu *menu = menuBar()->addMenu(QString::fromUtf16(top.caption));
        menu->setObjectName(QString::fromUtf16(top.name));
        for (const MenuEntry &entry : top.entries) {
            const QString name = QString::fromUtf16(entry.name);
            const QString caption = QString::fromUtf16(entry.caption);
            QAction *action = caption == u"-" ? menu->addSeparator() : menu->addAction(caption);
            action->setObjectName(name);
            action->setEnabled(false);
            connect(action, &QAction::triggered, this, [this, name] { open(name); });
        }
    }
}

QAction *MainWindow::menuItem(const QString &itemName) const
{
    return findChild<QAction *>(itemName);
}

void MainWindow::addScreen(const QString &itemName, ScreenFactory factory)
{
    m_screens[itemName].factory = std::move(factory);
    if (QAction *action = menuItem(itemName))
        action->setEnabled(true);
}

void MainWindow::open(const QString &itemName)
{
    const auto found = m_screens.find(itemName);
    if (found == m_screens.end())
        return;
    Screen &screen = found->second;
    if (!screen.instance) {
        screen.instance = screen.factory();
        screen.instance->setAttribute(Qt::WA_DeleteOnClose);
    }
    OpenInMain(screen.instance, 0);
}
