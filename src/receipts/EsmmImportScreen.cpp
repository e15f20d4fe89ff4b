#include "receipts/EsmmImportScreen.h"

#include "books/Message.h"
#include "controls/DcList.h"
#include "controls/ValueLabel.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QString dialogTitle = QStringLiteral("e-SMM Belgeleri");

ReportColumns columns()
{
    return { DateColumn(QStringLiteral("tarih"), QStringLiteral("Tarih"), 0, 85),
        TextColumn(QStringLiteral("makbuzno"), QStringLiteral("Makbuz No"), 0, 150),
        TextColumn(QStringLiteral("alici"), QStringLiteral("Alıcı"), 0, 140),
        AmountColumn(QStringLiteral("brut"), QStringLiteral("Brüt"), 0, 90),
        AmountColumn(QStringLiteral("stopaj"), QStringLiteral("Stopaj"), 0, 80),
        AmountColumn(QStringLiteral("kdv"), QStringLiteral("KDV"), 0, 80),
        AmountColumn(QStringLiteral("tevkifat"), QStringLiteral("Tevk. KDV"), 0, 80),
        AmountColumn(QStringLiteral("odenecek"), QStringLiteral("Ödenecek"), 0, 90),
        TextColumn(QStringLiteral("durum"), QStringLiteral("Durum"), 0, 120),
        TextColumn(QStringLiteral("dosya"), QStringLiteral("Dosya"), 0, 60) };
}

// The columns whose texts are shown whole: the payer, the status and the file.
constexpr int wholeTexts[] = { 2, 8, 9 };

} // namespace

EsmmImportScreen::EsmmImportScreen(QWidget *parent)
    : ListWindow(QStringLiteral("FormEsmm"), QStringLiteral("e-SMM Aktar"), parent)
    , m_counts(new ValueLabel(QStringLiteral("Durum"), this))
{
    QPushButton *files
        = addCommand(QStringLiteral("dosya"), QStringLiteral(" Dosya Seç (F2) "), Qt::Key_F2, [this] { pickFiles(); });
    QPushButton *folder = addCommand(
        QStringLiteral("klasor"), QStringLiteral(" Klasör Seç (F3) "), Qt::Key_F3, [this] { pickFolder(); });
    QPushButton *postButton
        = addCommand(QStringLiteral("aktar"), QStringLiteral(" Aktar (F5) "), Qt::Key_F5, [this] { post(); });
    auto *commands = new QHBoxLayout;
    commands->addWidget(m_counts, 1);
    commands->addWidget(files);
    commands->addWidget(folder);
    commands->addWidget(postButton);
    qobject_cast<QVBoxLayout *>(layout())->addLayout(commands);
    setColumns(columns());
    showRows();
}

void EsmmImportScreen::pickFiles()
{
    const QStringList paths = QFileDialog::getOpenFileNames(this, dialogTitle, QString(),
        QStringLiteral("e-SMM (*.xml *.zip *.XML *.ZIP);;Tüm dosyalar (*)"), nullptr, QFileDialog::DontUseNativeDialog);
    addPaths(paths);
}

void EsmmImportScreen::pickFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, dialogTitle, QString(), QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        addPaths({ folder });
}

void EsmmImportScreen::addPaths(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_import.read(paths);
    QApplication::restoreOverrideCursor();
    showRows();
}

void EsmmImportScreen::post()
{
    QString why;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool posted = m_import.post(&why);
    QApplication::restoreOverrideCursor();
    showRows();
    if (!posted)
        Message::exclamation(why);
}

void EsmmImportScreen::showRows()
{
    setColumns(columns());
    std::vector<QVariantList> rows;
    for (const EsmmRow &row : m_import.rows()) {
        const EsmmDocument &d = row.document;
        const auto amount = [](Currency value) { return QVariant::fromValue(value); };
        rows.push_back({ d.date.isValid() ? QVariant(d.date) : QVariant(QString()), d.makbuzNo, d.payerName,
            amount(d.gross), amount(d.stopaj), amount(d.kdv), amount(d.withheld), amount(AmountDue(d)),
            row.statusText(), QDir::toNativeSeparators(row.origin) });
    }
    addRows(rows);
    for (const int column : wholeTexts) // the window keeps its size: the list scrolls
        list()->widenToTexts(column);
    m_counts->setValue(m_import.summary());
}
