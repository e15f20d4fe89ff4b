#include "receipts/LayoutDesignerScreen.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "controls/XText.h"
#include "receipts/ReceiptPage.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

Recordset &duzen()
{
    return *dataFiles().duzen;
}

// "0005 - Ünvan - text"; a free-text row shows only its number and text.
QString entryText(int sira, int no, const QString &txt)
{
    const QString number = QStringLiteral("%1").arg(sira, 4, 10, QLatin1Char('0'));
    if (no >= 0 && no < ReceiptItemNames().size() && no != FreeTextItem)
        return number + QStringLiteral(" - ") + ReceiptItemNames().value(no) + QStringLiteral(" - ") + txt;
    return number + QStringLiteral(" - ") + txt;
}

} // namespace

LayoutDesignerScreen::LayoutDesignerScreen(QWidget *parent)
    : Screen(QStringLiteral("Form14"), QStringLiteral("Serbest Meslek Makbuz Dizaynı"), parent)
    , m_items(new QComboBox(this))
    , m_rows(new QListWidget(this))
{
    const struct
    {
        const char16_t *label;
        int format;
        double limit;
    } fields[] = { { u"Kod", XText::NumberFormat, 99 }, { u"Uzunluk", XText::NumberFormat, 80 },
        { u"Sol", XText::NumberFormat, 80 }, { u"Ust", XText::NumberFormat, 33 }, { u"Text", XText::TextFormat, 40 } };
    auto *grid = new QGridLayout;
    for (int i = 0; i < 5; ++i) {
        auto *field = new XText(this);
        field->setObjectName(QStringLiteral("xtext1_%1").arg(i));
        field->xTextBicim(fields[i].format, fields[i].limit, Qt::AlignLeft, true, 0, 0);
        field->setGrup(0);
        field->setMinimumWidth(fields[i].format == XText::TextFormat ? 320 : 90);
        m_fields[size_t(i)] = field;
    }
    m_items->setObjectName(QStringLiteral("Combo1"));
    m_items->addItems(ReceiptItemNames());
    m_rows->setObjectName(QStringLiteral("List1"));
    m_rows->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_rows->setAccessibleName(QStringLiteral("Dizayn Satırları"));
    grid->addWidget(labelFor(QStringLiteral("Kod"), m_fields[0]), 0, 0);
    grid->addWidget(m_fields[0], 0, 1, Qt::AlignLeft);
    grid->addWidget(labelFor(QStringLiteral("Alan"), m_items), 1, 0);
    grid->addWidget(m_items, 1, 1, Qt::AlignLeft);
    for (int i = 1; i < 5; ++i) {
        grid->addWidget(labelFor(QString::fromUtf16(fields[i].label), m_fields[size_t(i)]), i + 1, 0);
        grid->addWidget(m_fields[size_t(i)], i + 1, 1, Qt::AlignLeft);
    }
    auto *add = new QPushButton(QStringLiteral("Ekle"), this);
    add->setObjectName(QStringLiteral("ekle"));
    auto *erase = new QPushButton(QStringLiteral("Sil"), this);
    erase->setObjectName(QStringLiteral("sil"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(add);
    buttons->addWidget(erase);
    auto *page = new QVBoxLayout(this);
    page->addLayout(grid);
    page->addLayout(buttons);
    page->addWidget(m_rows, 1);
    resize(520, 520);

    connect(add, &QPushButton::clicked, this, &LayoutDesignerScreen::addOrChange);
    connect(erase, &QPushButton::clicked, this, &LayoutDesignerScreen::remove);
    connect(m_fields[0], &XText::Left, this, &LayoutDesignerScreen::showRow);
    // A row is loaded when it becomes current, by click or by the arrow keys, so that what
    // "Sil" and "Ekle" act on is the highlighted row.
    const auto load = [this](QListWidgetItem *item) {
        if (!item)
            return;
        m_fields[0]->setValue(item->text().left(4).toInt());
        showRow();
    };
    connect(m_rows, &QListWidget::itemClicked, this, load);
    connect(m_rows, &QListWidget::currentItemChanged, this, load);

    refresh();
    clearRow();
    setFocusChain({ m_fields[0], m_items, m_fields[1], m_fields[2], m_fields[3], m_fields[4] });
}

// The fields lose the focus while the screen is taken down; their signals must not reach it then.
LayoutDesignerScreen::~LayoutDesignerScreen()
{
    m_fields[0]->disconnect(this);
}

void LayoutDesignerScreen::refresh()
{
    m_rows->clear();
    std::unique_ptr<Recordset> rows;
    if (!QueryOpen(*dataFiles().db, rows, QStringLiteral("SELECT * FROM duzen ORDER BY sira")))
        return;
    do
        m_rows->addItem(entryText(FieldRead(*rows, QStringLiteral("sira")).toInt(),
            FieldRead(*rows, QStringLiteral("no")).toInt(), FieldRead(*rows, QStringLiteral("txt")).toString()));
    while (RsNext(*rows));
}

void LayoutDesignerScreen::clearRow()
{
    m_items->setCurrentIndex(0);
    for (int i = 1; i <= 3; ++i)
        m_fields[size_t(i)]->setValue(0);
    m_fields[4]->setText(QString());
}

bool LayoutDesignerScreen::seekRow()
{
    return RsSeek(duzen(), QStringLiteral("sira"), m_fields[0]->Value().toInt());
}

void LayoutDesignerScreen::showRow()
{
    if (!seekRow()) {
        clearRow();
        return;
    }
    m_items->setCurrentIndex(FieldRead(duzen(), QStringLiteral("no")).toInt());
    m_fields[1]->setValue(FieldRead(duzen(), QStringLiteral("uzun")).toDouble());
    m_fields[2]->setValue(FieldRead(duzen(), QStringLiteral("sol")).toDouble());
    m_fields[3]->setValue(FieldRead(duzen(), QStringLiteral("ust")).toDouble());
    m_fields[4]->setText(FieldRead(duzen(), QStringLiteral("txt")).toString());
}

void LayoutDesignerScreen::addOrChange()
{
    if (seekRow())
        RsEdit(duzen());
    else
        RsAddNew(duzen()); // the engine numbers a new row; the typed number is not stored
    FieldWrite(duzen(), QStringLiteral("no"), m_items->currentIndex());
    FieldWrite(duzen(), QStringLiteral("uzun"), m_fields[1]->Value());
    FieldWrite(duzen(), QStringLiteral("sol"), m_fields[2]->Value());
    FieldWrite(duzen(), QStringLiteral("ust"), m_fields[3]->Value());
    FieldWrite(duzen(), QStringLiteral("txt"), m_fields[4]->Text());
    if (!RsUpdate(duzen())) {
        Message::exclamation(QStringLiteral("Kayıt Yapılamıyor."));
        return;
    }
    afterChange();
}

void LayoutDesignerScreen::remove()
{
    if (!seekRow() || !Message::question(QStringLiteral("Kayıt Silinecek ?")))
        return;
    RsDelete(duzen());
    afterChange();
}

void LayoutDesignerScreen::afterChange()
{
    m_fields[0]->setValue(0);
    clearRow();
    refresh();
}
