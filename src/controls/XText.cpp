#include "controls/XText.h"

#include "controls/CharacterLimit.h"
#include "controls/EntryRules.h"
#include "controls/QuickFont.h"
#include "money/DayNumber.h"
#include "money/FormatAmount.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QTimer>
#include <QToolButton>

#include <cmath>

namespace {

const QString dateFormat = QStringLiteral("dd.MM.yyyy");

QDate dateOf(const QString &text)
{
    return QDate::fromString(text, dateFormat);
}

} // namespace

XText::XText(QWidget *parent)
    : QFrame(parent)
    , m_edit(new QLineEdit(this))
    , m_pictureButton(new QToolButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setFocusProxy(m_edit);
    setFocusPolicy(Qt::StrongFocus);
    m_edit->setFrame(false);
    m_edit->setFont(CellFont());
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textChanged, this, [this] {
        if (m_format == TextFormat)
            emit Change();
        else if (m_format == DateFormat)
            updateDateTip();
    });

    m_pictureButton->setFocusPolicy(Qt::NoFocus);
    m_pictureButton->setAutoRaise(true);
    m_pictureButton->setText(QStringLiteral("…"));
    m_pictureButton->setAccessibleName(QStringLiteral("Seç"));
    m_pictureButton->setToolTip(QStringLiteral("Seç (F2)"));
    m_pictureButton->hide();
    connect(m_pictureButton, &QToolButton::clicked, this, [this] {
        if (!m_locked)
            emit ButtonClick();
    });

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_pictureButton);

    const QPalette system = QApplication::palette();
    m_focusBack = m_back = system.color(QPalette::Base);
    m_focusFore = m_fore = system.color(QPalette::Text);
    setAutoFillBackground(true);
    applyColors(false);
}

void XText::Colors(const QColor &focusBack, const QColor &focusFore, const QColor &back, const QColor &fore)
{
    m_focusBack = focusBack;
    m_focusFore = focusFore;
    m_back = back;
    m_fore = fore;
    applyColors(false);
}

void XText::applyColors(bool focused)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Base, focused ? m_focusBack : m_back);
    colours.setColor(QPalette::Window, focused ? m_focusBack : m_back);
    colours.setColor(QPalette::Text, focused ? m_focusFore : m_fore);
    setPalette(colours);
    m_edit->setPalette(colours);
}

void XText::xTextBicim(int tip, double maxLen, Qt::Alignment alignment, bool autoSelect, int onda, int grup)
{
    if (tip == NumberFormat) {
        setTextTip(NumberFormat);
        m_autoSelect = true;
        m_edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_maxLenght = maxLen;
        m_onda = onda;
        m_grup = grup;
    } else if (tip == DateFormat) {
        setTextTip(DateFormat);
        m_autoSelect = true;
        m_edit->setAlignment(alignment | Qt::AlignVCenter);
        m_edit->setMaxLength(10);
    } else {
        setTextTip(TextFormat);
        m_maxLenght = qint16(maxLen);
        LimitCharacters(m_edit, int(m_maxLenght));
        m_edit->setAlignment(alignment | Qt::AlignVCenter);
        m_autoSelect = autoSelect;
    }
}

void XText::loadDesign(const QMap<QString, QString> &design)
{
    m_maxLenght = design.value(QStringLiteral("max"), QStringLiteral("0")).toDouble();
    setTextTip(design.value(QStringLiteral("xtexttip"), QStringLiteral("0")).toInt());
    m_onda = design.value(QStringLiteral("xtextonda"), QStringLiteral("0")).toInt();
    m_grup = design.value(QStringLiteral("xtextgrup"), QStringLiteral("3")).toInt();
    const auto flag = [&design](const char16_t *key) {
        const QString value = design.value(QString::fromUtf16(key), QStringLiteral("0"));
        return value.compare(u"True", Qt::CaseInsensitive) == 0 || value == u"1" || value == u"-1";
    };
    m_autoSelect = flag(u"xtextautoselect");
    setButton(flag(u"xbutton"));
    switch (m_format) {
    case NumberFormat:
        m_autoSelect = true;
        m_edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        break;
    case DateFormat:
        m_autoSelect = true;
        m_edit->setAlignment(Qt::AlignCenter);
        m_edit->setMaxLength(10);
        break;
    case CounterFormat:
        m_autoSelect = true;
        m_edit->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        break;
    case TextFormat:
        if (m_maxLenght > 256)
            m_maxLenght = 0;
        LimitCharacters(m_edit, int(m_maxLenght));
        m_edit->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        setPassWordChar(design.value(QStringLiteral("xtextpwd")));
        break;
    }
}

void XText::setTextTip(int format)
{
    m_format = format >= TextFormat && format <= CounterFormat ? Format(format) : TextFormat;
    applyLocks();
}

void XText::setLocked(bool locked)
{
    m_locked = locked;
    applyLocks();
}

// Number and counter fields build their text themselves; the box never edits it.
void XText::applyLocks()
{
    m_edit->setReadOnly(m_locked || m_format == NumberFormat || m_format == CounterFormat);
}

void XText::setOnda(int decimals)
{
    m_onda = decimals;
    if (m_format == NumberFormat)
        showNumber();
}

void XText::setPassWordChar(const QString &mask)
{
    m_passwordChar = mask;
    m_edit->setEchoMode(mask.isEmpty() || m_format != TextFormat ? QLineEdit::Normal : QLineEdit::Password);
}

void XText::setButton(bool shown)
{
    m_button = shown;
    m_pictureButton->setVisible(shown);
}

QIcon XText::Picture() const
{
    return m_pictureButton->icon();
}

void XText::setPicture(const QIcon &picture)
{
    m_pictureButton->setIcon(picture);
}

QString XText::ToolText() const
{
    return m_edit->toolTip();
}

void XText::setToolText(const QString &text)
{
    m_edit->setToolTip(text);
}

QString XText::Text() const
{
    return m_edit->text();
}

void XText::setText(const QString &text)
{
    m_buffer = text;
    m_edit->setText(text);
    if (m_format == DateFormat)
        updateDateTip();
}

QVariant XText::Value() const
{
    switch (m_format) {
    case NumberFormat:
    case CounterFormat:
        return m_value;
    case DateFormat: {
        const QDate date = dateOf(m_edit->text());
        return date.isValid() ? QVariant(DayNumber(date)) : QVariant(0);
    }
    case TextFormat:
        break;
    }
    return QVariant();
}

void XText::setValue(const QVariant &value)
{
    switch (m_format) {
    case DateFormat: {
        QDate date = value.toDate();
        if (!date.isValid() && value.canConvert<double>() && value.typeId() != QMetaType::QString)
            date = DateFromDayNumber(qint64(std::llround(value.toDouble())));
        if (date.isValid())
            m_edit->setText(FormatDate(date));
        else
            m_edit->setToolTip(QStringLiteral(" Hatalı Tarih "));
        break;
    }
    case NumberFormat:
        m_buffer = value.userType() == qMetaTypeId<Currency>() ? value.value<Currency>().toString() : value.toString();
        m_value = EntryValue(m_buffer);
        showNumber();
        break;
    case CounterFormat:
        m_value = value;
        break;
    case TextFormat:
        break;
    }
}

Currency XText::amount() const
{
    return Currency::fromString(m_buffer); // "12." reads as 12, "" and "." as 0
}

void XText::showNumber()
{
    m_edit->setText(FormatNumber(m_buffer, m_onda, m_grup));
}

void XText::setTextAtEnd(const QString &text)
{
    m_edit->setText(text);
    m_edit->end(false);
}

void XText::updateDateTip()
{
    const QDate date = dateOf(m_edit->text());
    m_edit->setToolTip(date.isValid() ? u' '
                + QLocale(QLocale::Turkish, QLocale::Turkey).toString(date, QStringLiteral("dd MMMM yyyy dddd")) + u' '
                                      : QStringLiteral(" Hatalı Tarih "));
}

void XText::changed()
{
    if (m_format == DateFormat)
        updateDateTip();
    emit Change();
}

bool XText::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_edit) {
        switch (event->type()) {
        case QEvent::KeyPress:
            return keyPress(static_cast<QKeyEvent *>(event));
        case QEvent::FocusIn:
            focusIn();
            break;
        case QEvent::FocusOut:
            focusOut();
            break;
        default:
            break;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void XText::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        applyColors(false);
    QFrame::changeEvent(event);
}

// A field with the focus is ringed in the highlight colour, so a fast typist sees where the
// keys go even in a number field, which shows no caret.
void XText::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (!m_edit->hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

bool XText::keyPress(QKeyEvent *event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers held = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        moveFocus(true);
        return true;
    case Qt::Key_Up:
        moveFocus(false);
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (m_format == DateFormat)
            m_fresh = false;
        return false;
    case Qt::Key_Delete:
        if (m_format == NumberFormat || m_format == DateFormat) {
            clearEntry();
            changed();
            return true;
        }
        changed();
        return false; // a text field's box deletes the character itself
    case Qt::Key_F2:
        if (held == Qt::NoModifier && m_button) {
            emit ButtonClick();
            return true;
        }
        break;
    default:
        break;
    }
    int code = key;
    Qt::KeyboardModifiers modifiers = event->modifiers();
    emit KeyDown(code, modifiers);
    if (code == 0)
        return true;
    return character(event);
}

bool XText::character(QKeyEvent *event)
{
    const bool backspace = event->key() == Qt::Key_Backspace;
    const QString text = event->text();
    if (!backspace && (text.isEmpty() || !text.front().isPrint()))
        return false; // not a character: the box (or the screen) handles the key
    const QChar c = backspace ? QChar(u'\b') : text.front();
    switch (m_format) {
    case NumberFormat:
        if (!m_locked)
            numberCharacter(c, backspace);
        return true;
    case DateFormat:
        return m_locked || dateCharacter(c, backspace);
    case CounterFormat:
        counterCharacter(c);
        return true;
    case TextFormat:
        break;
    }
    return false;
}

void XText::numberCharacter(QChar c, bool backspace)
{
    if (m_fresh) {
        m_buffer.clear();
        m_fresh = false;
        m_point = false;
    }
    if (backspace)
        m_buffer.chop(1);
    else if (!TypeIntoNumber(m_buffer, c, m_maxLenght, m_onda, m_point))
        QApplication::beep();
    else if (c == u'.' || c == u',')
        m_point = m_point || m_buffer.endsWith(u'.'); // Backspace does not give the point back
    showNumber();
    m_value = EntryValue(m_buffer);
    m_edit->end(false);
    changed();
}

// Completes the dots of "dd.MM.yyyy" around what the box itself inserts or deletes. Returns
// true when the character is swallowed.
bool XText::dateCharacter(QChar c, bool backspace)
{
    if (m_fresh) {
        m_edit->clear();
        m_fresh = false;
    }
    if (!backspace && !c.isDigit()) {
        changed();
        return true;
    }
    const QString text = m_edit->text();
    const QString prepared = backspace ? DateBeforeBackspace(text) : DateBeforeDigit(text);
    if (prepared != text)
        setTextAtEnd(prepared);
    changed();
    return false;
}

void XText::counterCharacter(QChar c)
{
    if (c == u'+')
        m_value = m_value.toDouble() + 1;
    else if (c == u'-')
        m_value = m_value.toDouble() - 1;
    else if (c.isDigit())
        m_value = c.digitValue();
    changed();
}

void XText::moveFocus(bool forward)
{
    // As a Tab (Shift+Tab) on the field: the screen's focus chain decides where it goes.
    QKeyEvent tab(
        QEvent::KeyPress, forward ? Qt::Key_Tab : Qt::Key_Backtab, forward ? Qt::NoModifier : Qt::ShiftModifier);
    QCoreApplication::sendEvent(this, &tab);
}

void XText::clearEntry()
{
    m_edit->clear();
    m_buffer.clear();
    m_value = 0;
    m_fresh = true;
}

void XText::focusIn()
{
    update();
    m_fresh = true;
    m_point = false;
    applyColors(true);
    if (m_autoSelect)
        QTimer::singleShot(0, m_edit, &QLineEdit::selectAll);
}

void XText::focusOut()
{
    update();
    applyColors(false);
    if (m_format == NumberFormat) {
        showNumber();
    } else if (m_format == DateFormat) {
        const QDate date = dateOf(m_edit->text());
        m_edit->setText(date.isValid() ? FormatDate(date) : QStringLiteral("??.??.????"));
    }
    emit Left();
}
