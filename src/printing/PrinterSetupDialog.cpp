#include "printing/PrinterSetupDialog.h"

#include "printing/CupsPrinters.h"
#include "printing/PrintSettings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

const QString noPrinter = QStringLiteral("Seçili Yazıcı Yok... Yazıcı Yükleyiniz.");

QRadioButton *option(const QString &name, const QString &caption, QWidget *parent)
{
    auto *button = new QRadioButton(caption, parent);
    button->setObjectName(name);
    return button;
}

QPushButton *button(const QString &name, const QString &caption, QWidget *parent)
{
    auto *push = new QPushButton(caption, parent);
    push->setObjectName(name);
    push->setAutoDefault(true); // Enter presses the focused button
    return push;
}

// The printout's title as a file name in the folder of the previous PDF file (the documents
// folder at first); a file that is already there is never offered, so nothing is overwritten
// by accident.
QString suggestedPdfFile(const QString &previous, const QString &title)
{
    QString folder = previous.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                        : QFileInfo(previous).absolutePath();
    if (folder.isEmpty())
        folder = QDir::homePath();
    QString name = title.trimmed();
    name.replace(u'/', u'-');
    if (name.isEmpty())
        name = QStringLiteral("Belge");
    QString file = QDir(folder).filePath(name + QStringLiteral(".pdf"));
    for (int copy = 2; QFileInfo::exists(file); ++copy)
        file = QDir(folder).filePath(QStringLiteral("%1 (%2).pdf").arg(name).arg(copy));
    return file;
}

} // namespace

PrinterSetupDialog::PrinterSetupDialog(QWidget *parent)
    : QDialog(parent)
    , m_printer(new QLabel(noPrinter, this))
    , m_pdfOnly(new QLabel(QStringLiteral("Yazıcı olmadan yalnız PDF dosyasına yazdırılabilir."), this))
    , m_choosePrinter(button(QStringLiteral("Command1"), QStringLiteral("Yazıcı Seç"), this))
    , m_dotMatrix(option(QStringLiteral("Option1_0"), QStringLiteral("Dot Matrix (Dos Mod)"), this))
    , m_graphic(option(QStringLiteral("Option1_1"), QStringLiteral("Grafik (Windows Mod)"), this))
    , m_pdf(option(QStringLiteral("Option1_2"), QStringLiteral("PDF Dosyası"), this))
    , m_pdfFile(new QLineEdit(this))
    , m_lines(new QComboBox(this))
    , m_copies(new QComboBox(this))
    , m_portrait(option(QStringLiteral("Option2_0"), QStringLiteral("Dikey"), this))
    , m_landscape(option(QStringLiteral("Option2_1"), QStringLiteral("Yatay"), this))
    , m_title(new QLineEdit(this))
    , m_ok(button(QStringLiteral("Command4"), QStringLiteral("&Tamam"), this))
    , m_preview(button(QStringLiteral("Command6"), QStringLiteral(" Önizleme "), this))
    , m_cancel(button(QStringLiteral("Command5"), QStringLiteral("&Vazgeç"), this))
{
    setObjectName(QStringLiteral("yzcsetup"));
    setWindowTitle(QStringLiteral(" Yazıcı Ayarları"));
    m_printer->setObjectName(QStringLiteral("Label1"));
    m_printer->setAccessibleDescription(QStringLiteral("Yazıcı"));
    m_pdfOnly->setObjectName(QStringLiteral("Label2"));
    m_pdfOnly->setAccessibleName(m_pdfOnly->text());
    m_pdfFile->setObjectName(QStringLiteral("Text2"));
    m_lines->setObjectName(QStringLiteral("Combo1"));
    m_copies->setObjectName(QStringLiteral("Combo2"));
    m_title->setObjectName(QStringLiteral("Text1"));
    const char16_t *headings[]
        = { u"Başlık Yazılsın", u"Tarih Yazılsın", u"Sayfa No Yazılsın", u"Şirket Adı Yazılsın" };
    for (int i = 0; i < 4; ++i) {
        m_headings[i] = new QCheckBox(QString::fromUtf16(headings[i]), this);
        m_headings[i]->setObjectName(QStringLiteral("Check1_%1").arg(i));
    }
    m_lines->addItems({ QStringLiteral("22"), QStringLiteral("33"), QStringLiteral("44"), QStringLiteral("66"),
        QStringLiteral("70") });
    m_copies->addItems(
        { QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5") });
    m_lines->setCurrentText(QStringLiteral("66"));

    auto *kinds = new QButtonGroup(this);
    kinds->addButton(m_dotMatrix);
    kinds->addButton(m_graphic);
    kinds->addButton(m_pdf);
    auto *orientations = new QButtonGroup(this);
    orientations->addButton(m_portrait);
    orientations->addButton(m_landscape);

    auto *printerRow = new QHBoxLayout;
    printerRow->addWidget(m_printer, 1);
    printerRow->addWidget(m_choosePrinter);

    auto *kindBox = new QGroupBox(QStringLiteral("Çıktı"), this);
    auto *kindLayout = new QVBoxLayout(kindBox);
    kindLayout->addWidget(m_dotMatrix);
    kindLayout->addWidget(m_graphic);
    kindLayout->addWidget(m_pdf);
    kindLayout->addWidget(m_pdfFile);
    m_pdfFile->setAccessibleName(QStringLiteral("PDF Dosyası"));
    m_pdfFile->setMinimumWidth(260);

    auto *orientationBox = new QGroupBox(QStringLiteral("Sayfa Yönü"), this);
    auto *orientationLayout = new QVBoxLayout(orientationBox);
    orientationLayout->addWidget(m_portrait);
    orientationLayout->addWidget(m_landscape);

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("Satır Sayısı"), m_lines);
    form->addRow(QStringLiteral("Kopya Sayısı"), m_copies);
    m_lines->setAccessibleName(QStringLiteral("Satır Sayısı"));
    m_copies->setAccessibleName(QStringLiteral("Kopya Sayısı"));

    auto *headingBox = new QGroupBox(QStringLiteral("Sayfa Başlığı"), this);
    auto *headingLayout = new QVBoxLayout(headingBox);
    for (QCheckBox *heading : m_headings)
        headingLayout->addWidget(heading);
    auto *titleRow = new QFormLayout;
    titleRow->addRow(QStringLiteral("Başlık:"), m_title);
    m_title->setAccessibleName(QStringLiteral("Başlık:"));
    m_title->setMinimumWidth(240);
    headingLayout->addLayout(titleRow);

    auto *middle = new QHBoxLayout;
    auto *left = new QVBoxLayout;
    left->addWidget(kindBox);
    left->addLayout(form);
    left->addWidget(orientationBox);
    middle->addLayout(left);
    middle->addWidget(headingBox, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_preview);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);

    auto *page = new QVBoxLayout(this);
    page->addLayout(printerRow);
    page->addWidget(m_pdfOnly);
    page->addLayout(middle);
    page->addLayout(buttons);

    connect(m_dotMatrix, &QRadioButton::toggled, this, &PrinterSetupDialog::kindChosen);
    connect(m_graphic, &QRadioButton::toggled, this, &PrinterSetupDialog::kindChosen);
    connect(m_pdf, &QRadioButton::toggled, this, &PrinterSetupDialog::kindChosen);
    // The suggested file name follows the title until the user types a name of his own.
    connect(m_title, &QLineEdit::textEdited, this, [this](const QString &title) {
        if (!m_pdfFile->isModified())
            m_pdfFile->setText(suggestedPdfFile(m_pdfFile->text(), title));
    });
    connect(m_choosePrinter, &QPushButton::clicked, this, &PrinterSetupDialog::choosePrinter);
    connect(m_ok, &QPushButton::clicked, this, [this] { confirm(false); });
    connect(m_preview, &QPushButton::clicked, this, [this] { confirm(true); });
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (QWidget *child : findChildren<QWidget *>())
        child->installEventFilter(this);

    m_ok->setDefault(true); // Enter elsewhere confirms
    printSettings().confirmed = false;
    showRecord();
}

// Without a printer only a PDF file can be written: the printer's kinds are greyed and a line
// under the printer's name says so.
void PrinterSetupDialog::showRecord()
{
    const QString printer = CurrentPrinterName();
    const bool hasPrinter = !printer.isEmpty();
    const PrintSettings &record = printSettings();
    m_printer->setText(hasPrinter ? printer : noPrinter);
    m_printer->setAccessibleName(m_printer->text());
    m_pdfOnly->setVisible(!hasPrinter);
    m_dotMatrix->setEnabled(hasPrinter);
    m_graphic->setEnabled(hasPrinter);
    m_choosePrinter->setEnabled(hasPrinter);
    m_title->setText(record.title);
    const bool headings[] = { record.titleHeading, record.dateHeading, record.pageNoHeading, record.companyHeading };
    for (int i = 0; i < 4; ++i)
        m_headings[i]->setChecked(headings[i]);
    const int lines = m_lines->findText(QString::number(record.lines));
    if (lines >= 0)
        m_lines->setCurrentIndex(lines);
    m_copies->setCurrentIndex(qBound(0, record.copies - 1, m_copies->count() - 1));
    (record.orientation != 1 ? m_landscape : m_portrait)->setChecked(true);
    QRadioButton *kind = !hasPrinter                             ? m_pdf
        : record.dotMatrix                                       ? m_dotMatrix
        : record.target == PrintSettings::GraphicTarget::PdfFile ? m_pdf
                                                                 : m_graphic;
    kind->setChecked(true);
    m_pdfFile->setText(suggestedPdfFile(record.pdfFile, record.title));
    kindChosen();
}

void PrinterSetupDialog::kindChosen()
{
    const bool raw = m_dotMatrix->isChecked();
    m_lines->setEnabled(raw);
    m_portrait->setEnabled(!raw);
    m_landscape->setEnabled(!raw);
    m_pdfFile->setEnabled(m_pdf->isChecked());
    m_preview->setEnabled(!raw);
}

void PrinterSetupDialog::choosePrinter()
{
    QPrinter printer;
    printer.setPrinterName(CurrentPrinterName());
    printer.setCopyCount(printSettings().copies);
    printer.setPageOrientation(printSettings().orientation == 1 ? QPageLayout::Portrait : QPageLayout::Landscape);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        SetCurrentPrinterName(printer.printerName());
    showRecord();
}

void PrinterSetupDialog::confirm(bool preview)
{
    PrintSettings &record = printSettings();
    record.confirmed = true;
    record.title = m_title->text();
    record.titleHeading = m_headings[0]->isChecked();
    record.dateHeading = m_headings[1]->isChecked();
    record.pageNoHeading = m_headings[2]->isChecked();
    record.companyHeading = m_headings[3]->isChecked();
    record.dotMatrix = m_dotMatrix->isChecked();
    record.copies = m_copies->currentText().toInt();
    record.orientation = m_portrait->isChecked() ? 1 : 2;
    record.lines = m_lines->currentText().toInt();
    record.target = preview  ? PrintSettings::GraphicTarget::Preview
        : m_pdf->isChecked() ? PrintSettings::GraphicTarget::PdfFile
                             : PrintSettings::GraphicTarget::Printer;
    record.pdfFile = m_pdfFile->text();
    accept();
}

bool PrinterSetupDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
            if (m_dotMatrix->isEnabled())
                m_dotMatrix->setChecked(true);
            return true;
        case Qt::Key_Down:
            if (m_graphic->isEnabled())
                m_graphic->setChecked(true);
            return true;
        case Qt::Key_Escape:
            reject();
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool ShowPrinterSetup(QWidget *parent)
{
    PrinterSetupDialog dialog(parent);
    dialog.exec();
    return printSettings().confirmed;
}
