#include "app/SettingsScreen.h"

#include "books/Parameters.h"
#include "controls/XText.h"
#include "money/AmountConventions.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

struct FieldLayout
{
    const char16_t *label;
    int format;
    double limit; // the largest number, or the most characters
    int decimals;
};

const std::array<FieldLayout, 12> fieldLayout = { {
    { u"Stopaj Oran %", XText::NumberFormat, 99, 2 },
    { u"Fon Oran %", XText::NumberFormat, 99, 2 },
    { u"K.D.V. Oran %", XText::NumberFormat, 99, 2 },
    { u"TL Onda", XText::NumberFormat, 5, 0 },
    { u"Makbuz Seri No", XText::NumberFormat, 99999999, 0 },
    { u"Emanet Seri No", XText::NumberFormat, 99999999, 0 },
    { u"Not 1 İsim", XText::TextFormat, 10, 0 },
    { u"Not 2 İsim", XText::TextFormat, 10, 0 },
    { u"Not 3 İsim", XText::TextFormat, 10, 0 },
    { u"Not 4 İsim", XText::TextFormat, 10, 0 },
    { u"Ünvan", XText::TextFormat, 40, 0 },
    { u"Vergi No", XText::TextFormat, 11, 0 },
} };

} // namespace

SettingsScreen::SettingsScreen(QWidget *parent)
    : Screen(QStringLiteral("Form2"), QStringLiteral("Ayarlar"), parent)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    for (size_t i = 0; i < fieldLayout.size(); ++i) {
        const FieldLayout &layout = fieldLayout[i];
        XText *field = new XText(this);
        field->setObjectName(QStringLiteral("xtext1_%1").arg(i));
        field->xTextBicim(layout.format, layout.limit, Qt::AlignLeft, true, layout.decimals, 0);
        field->setGrup(0);
        field->setMinimumWidth(layout.format == XText::NumberFormat ? 130 : layout.limit > 10 ? 360 : 160);
        const int row = int(i);
        grid->addWidget(labelFor(QString::fromUtf16(layout.label), field), row, 0);
        grid->addWidget(field, row, 1, Qt::AlignLeft);
        m_fields[i] = field;
    }
    grid->setColumnStretch(1, 1);

    auto *saveButton = new QPushButton(QStringLiteral("Kaydet"), this);
    saveButton->setObjectName(QStringLiteral("kaydet"));
    auto *cancelButton = new QPushButton(QStringLiteral("Vazgeç"), this);
    cancelButton->setObjectName(QStringLiteral("vazgec"));
    connect(saveButton, &QPushButton::clicked, this, &SettingsScreen::save);
    connect(cancelButton, &QPushButton::clicked, this, &Screen::closeScreen);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(cancelButton);

    auto *page = new QVBoxLayout(this);
    page->addLayout(grid);
    page->addSpacing(8);
    page->addLayout(buttons);

    fill();
    setFocusChain({ m_fields[0], m_fields[1], m_fields[2], m_fields[3], m_fields[4], m_fields[5], m_fields[6],
        m_fields[7], m_fields[8], m_fields[9], m_fields[10], m_fields[11], saveButton, cancelButton });
}

// A book whose settings were never saved is offered today's usual values; they are stored only
// by "Kaydet".
void SettingsScreen::fill()
{
    const ParameterSet &set = parameters();
    const bool saved = ParametersSaved();
    m_fields[0]->setValue(saved ? set.stopaj : 20);
    m_fields[1]->setValue(saved ? set.fon : 0);
    m_fields[2]->setValue(saved ? set.kdv : 20);
    m_fields[3]->setValue(saved ? amountConventions().tlonda : 2);
    m_fields[4]->setValue(QVariant::fromValue(set.serino));
    m_fields[5]->setValue(QVariant::fromValue(set.emanet));
    m_fields[6]->setText(set.not1);
    m_fields[7]->setText(set.not2);
    m_fields[8]->setText(set.not3);
    m_fields[9]->setText(set.not4);
    m_fields[10]->setText(set.unvan);
    m_fields[11]->setText(set.vergino);
}

void SettingsScreen::save()
{
    ParameterSet &set = parameters();
    set.stopaj = m_fields[0]->Value().toFloat();
    set.fon = m_fields[1]->Value().toFloat();
    set.kdv = m_fields[2]->Value().toFloat();
    amountConventions().tlonda = m_fields[3]->Value().toInt();
    set.serino = m_fields[4]->amount();
    set.emanet = m_fields[5]->amount();
    set.not1 = m_fields[6]->Text();
    set.not2 = m_fields[7]->Text();
    set.not3 = m_fields[8]->Text();
    set.not4 = m_fields[9]->Text();
    set.unvan = m_fields[10]->Text();
    set.vergino = m_fields[11]->Text().trimmed();

    GenelSingSet(QStringLiteral("stopaj"), set.stopaj);
    GenelSingSet(QStringLiteral("fon"), set.fon);
    GenelSingSet(QStringLiteral("kdv"), set.kdv);
    GenelIntegSet(QStringLiteral("tlonda"), amountConventions().tlonda);
    GenelCurrenSet(QStringLiteral("serino"), set.serino);
    GenelCurrenSet(QStringLiteral("emanet"), set.emanet);
    GenelTxtSet(QStringLiteral("not1"), set.not1);
    GenelTxtSet(QStringLiteral("not2"), set.not2);
    GenelTxtSet(QStringLiteral("not3"), set.not3);
    GenelTxtSet(QStringLiteral("not4"), set.not4);
    GenelTxtSet(QStringLiteral("unvan"), set.unvan);
    GenelTxtSet(QStringLiteral("vergino"), set.vergino);
    closeScreen();
}
