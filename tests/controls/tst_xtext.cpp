#include "controls/XText.h"
#include "money/AmountConventions.h"
#include "testsupport/Typing.h"

#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

// Three fields on a window, as on a screen; the middle one is under test.
class FieldHarness : public QWidget
{
public:
    FieldHarness()
    {
        auto *layout = new QVBoxLayout(this);
        for (XText *&field : fields) {
            field = new XText(this);
            layout->addWidget(field);
        }
    }
    XText *field() const { return fields[1]; }
    XText *fields[3] = {};
};

class TestXText : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        amountConventions() = AmountConventions();
        m_window = std::make_unique<FieldHarness>();
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void numberEntry_data()
    {
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<double>("value");
        QTest::newRow("more decimals than shown") << 1e9 << 2 << u"12.345"_s << u"12.35"_s << 12.345;
        QTest::newRow("largest value 0 takes no digit") << 0.0 << 0 << u"123"_s << u""_s << 0.0;
        QTest::newRow("plus appends 000 past the largest value") << 5.0 << 0 << u"5+"_s << u"5,000"_s << 5000.0;
        QTest::newRow("digit beyond the largest value") << 99.0 << 0 << u"123"_s << u"12"_s << 12.0;
        QTest::newRow("point refused after Backspace took it") << 1e9 << 2 << u"12.\b.5"_s << u"125.00"_s << 125.0;
        QTest::newRow("point with no decimals") << 1e9 << 0 << u"1.5"_s << u"15"_s << 15.0;
        QTest::newRow("comma is the point") << 1e9 << 2 << u"1,5"_s << u"1.50"_s << 1.5;
        QTest::newRow("grouped") << 1e9 << 2 << u"1234567"_s << u"1,234,567.00"_s << 1234567.0;
        QTest::newRow("no leading zero") << 1e9 << 2 << u".5"_s << u".50"_s << 0.5;
        QTest::newRow("letters refused") << 1e9 << 0 << u"1a2"_s << u"12"_s << 12.0;
        QTest::newRow("backspace to nothing") << 1e9 << 0 << u"1\b"_s << u""_s << 0.0;
        QTest::newRow("backspace keeps the rest") << 1e9 << 2 << u"12.5\b\b\b"_s << u"1.00"_s << 1.0;
    }

    void numberEntry()
    {
        QFETCH(double, maximum);
        QFETCH(int, decimals);
        QFETCH(QString, keys);
        QFETCH(QString, shown);
        QFETCH(double, value);
        XText *field = m_window->field();
        field->xTextBicim(XText::NumberFormat, maximum, Qt::AlignLeft, false, decimals, 3);
        field->setValue(77); // the first key of an entry replaces what was there
        enter(field);
        typeKeys(field->textBox(), keys);
        QCOMPARE(field->Text(), shown);
        QCOMPARE(field->Value().toDouble(), value);
        QCOMPARE(field->textBox()->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    }

    void numberDisplay_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("shown");
        QTest::newRow("half") << QVariant(0.5) << 2 << u".50"_s;
        QTest::newRow("zero is empty") << QVariant(0) << 2 << u""_s;
        QTest::newRow("amount") << QVariant::fromValue(Currency::fromString(u"1234.5")) << 2 << u"1,234.50"_s;
        QTest::newRow("negative") << QVariant(-3.25) << 1 << u"-3.3"_s;
    }

    void numberDisplay()
    {
        QFETCH(QVariant, value);
        QFETCH(int, decimals);
        QFETCH(QString, shown);
        XText *field = m_window->field();
        field->xTextBicim(XText::NumberFormat, 1e9, Qt::AlignLeft, false, decimals, 3);
        field->setValue(value);
        QCOMPARE(field->Text(), shown);
    }

    void dateEntry_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("left");
        QTest::addColumn<qint64>("value");
        QTest::newRow("eight digits") << u"01012010"_s << u"01.01.2010"_s << u"01.01.2010"_s << qint64(40179);
        QTest::newRow("end of 2009") << u"31122009"_s << u"31.12.2009"_s << u"31.12.2009"_s << qint64(40178);
        QTest::newRow("no 31 February") << u"31022010"_s << u"31.02.2010"_s << u"??.??.????"_s << qint64(0);
        QTest::newRow("letters swallowed") << u"01a01-2010"_s << u"01.01.2010"_s << u"01.01.2010"_s << qint64(40179);
        QTest::newRow("backspace after the day's dot") << u"120\b\b"_s << u"1"_s << u"??.??.????"_s << qint64(0);
        QTest::newRow("backspace after the month's dot") << u"12035\b\b"_s << u"12.0"_s << u"??.??.????"_s << qint64(0);
    }

    void dateEntry()
    {
        QFETCH(QString, keys);
        QFETCH(QString, typed);
        QFETCH(QString, left);
        QFETCH(qint64, value);
        XText *field = m_window->field();
        field->xTextBicim(XText::DateFormat, 0, Qt::AlignCenter, false, 0, 0);
        field->setValue(QDate(2026, 11, 16)); // replaced by the first key
        enter(field);
        typeKeys(field->textBox(), keys);
        QCOMPARE(field->Text(), typed);
        QTest::keyClick(field->textBox(), Qt::Key_Return);
        QVERIFY(m_window->fields[2]->textBox()->hasFocus());
        QCOMPARE(field->Text(), left);
        QCOMPARE(field->Value().toLongLong(), value);
    }

    void dateTips_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tip");
        QTest::newRow("date") << QVariant(QDate(2026, 11, 16)) << u"16.11.2026"_s << u" 16 Kasım 2026 Pazartesi "_s;
        QTest::newRow("day number") << QVariant(40179) << u"01.01.2010"_s << u" 01 Ocak 2010 Cuma "_s;
        QTest::newRow("no date") << QVariant(QDate()) << u""_s << u" Hatalı Tarih "_s;
    }

    void dateTips()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        QFETCH(QString, tip);
        XText *field = m_window->field();
        field->xTextBicim(XText::DateFormat, 0, Qt::AlignCenter, false, 0, 0);
        field->setValue(value);
        QCOMPARE(field->Text(), text);
        QCOMPARE(field->textBox()->toolTip(), tip);
    }

    void dateChangeComesBeforeTheDigit()
    {
        XText *field = m_window->field();
        field->xTextBicim(XText::DateFormat, 0, Qt::AlignCenter, false, 0, 0);
        QStringList seen;
        connect(field, &XText::Change, this, [&] { seen << field->Text(); });
        enter(field);
        typeKeys(field->textBox(), QStringLiteral("123"));
        QCOMPARE(seen, QStringList({ "", "1", "12." }));
        QCOMPARE(field->Text(), QStringLiteral("12.3"));
    }

    void everyNumberKeyIsAChange()
    {
        XText *field = m_window->field();
        field->xTextBicim(XText::NumberFormat, 9, Qt::AlignLeft, false, 0, 3);
        QSignalSpy changes(field, &XText::Change);
        enter(field);
        typeKeys(field->textBox(), QStringLiteral("1x2")); // a refused key changes too
        QCOMPARE(changes.count(), 3);
    }

    void enterDownAndUpMoveTheFocus_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("target");
        QTest::newRow("Enter") << int(Qt::Key_Return) << 2;
        QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << 2;
        QTest::newRow("Down") << int(Qt::Key_Down) << 2;
        QTest::newRow("Up") << int(Qt::Key_Up) << 0;
    }

    void enterDownAndUpMoveTheFocus()
    {
        QFETCH(int, key);
        QFETCH(int, target);
        XText *field = m_window->field();
        QSignalSpy keys(field, &XText::KeyDown);
        enter(field);
        QTest::keyClick(field->textBox(), Qt::Key(key));
        QVERIFY(m_window->fields[target]->textBox()->hasFocus());
        QCOMPARE(keys.count(), 0);
        QCOMPARE(field->Text(), QString());
    }

    void deleteClears_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("number") << int(XText::NumberFormat) << QVariant(42);
        QTest::newRow("date") << int(XText::DateFormat) << QVariant(QDate(2026, 1, 2));
    }

    void deleteClears()
    {
        QFETCH(int, format);
        QFETCH(QVariant, value);
        XText *field = m_window->field();
        field->xTextBicim(format, 100, Qt::AlignLeft, false, 0, 3);
        field->setValue(value);
        QVERIFY(!field->Text().isEmpty());
        QSignalSpy changes(field, &XText::Change);
        QSignalSpy keys(field, &XText::KeyDown);
        enter(field);
        QTest::keyClick(field->textBox(), Qt::Key_Delete);
        QCOMPARE(field->Text(), QString());
        QCOMPARE(field->Value(), QVariant(0));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(keys.count(), 0);
        typeKeys(field->textBox(), QStringLiteral("7")); // a new entry starts after Delete
        QCOMPARE(field->Text().left(1), QStringLiteral("7"));
    }

    void functionKeyTwo_data()
    {
        QTest::addColumn<bool>("button");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("clicks");
        QTest::addColumn<int>("keyDowns");
        QTest::newRow("button, F2") << true << int(Qt::NoModifier) << 1 << 0;
        QTest::newRow("button, Shift+F2") << true << int(Qt::ShiftModifier) << 0 << 1;
        QTest::newRow("no button, F2") << false << int(Qt::NoModifier) << 0 << 1;
    }

    void functionKeyTwo()
    {
        QFETCH(bool, button);
        QFETCH(int, modifiers);
        QFETCH(int, clicks);
        QFETCH(int, keyDowns);
        XText *field = m_window->field();
        field->setButton(button);
        QSignalSpy clicked(field, &XText::ButtonClick);
        QList<int> keys;
        connect(field, &XText::KeyDown, this, [&keys](int &key, Qt::KeyboardModifiers &) { keys << key; });
        enter(field);
        QTest::keyClick(field->textBox(), Qt::Key_F2, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(clicked.count(), clicks);
        QCOMPARE(keys.count(int(Qt::Key_F2)), keyDowns);
    }

    void screenCanTakeAKey()
    {
        XText *field = m_window->field();
        field->xTextBicim(XText::NumberFormat, 1e6, Qt::AlignLeft, false, 0, 3);
        connect(field, &XText::KeyDown, this, [](int &key, Qt::KeyboardModifiers &) {
            if (key == Qt::Key_5)
                key = 0;
        });
        enter(field);
        typeKeys(field->textBox(), QStringLiteral("456"));
        QCOMPARE(field->Text(), QStringLiteral("46"));
    }

    void lockedNumberRefusesTyping()
    {
        XText *field = m_window->field();
        field->xTextBicim(XText::NumberFormat, 1e6, Qt::AlignLeft, false, 0, 3);
        field->setValue(12);
        field->setLocked(true);
        field->setButton(true);
        QSignalSpy clicked(field, &XText::ButtonClick);
        enter(field);
        typeKeys(field->textBox(), QStringLiteral("9"));
        QCOMPARE(field->Text(), QStringLiteral("12"));
        QCOMPARE(field->Value().toDouble(), 12.0);
        field->findChild<QToolButton *>()->click();
        QCOMPARE(clicked.count(), 0);
    }

    void counterFromTheStoredDesign()
    {
        XText *field = m_window->field();
        field->loadDesign({ { "xtexttip", "3" } });
        QCOMPARE(field->TextTip(), int(XText::CounterFormat));
        QVERIFY(field->AutoSelect());
        enter(field);
        QList<int> values;
        connect(field, &XText::Change, this, [&] { values << field->Value().toInt(); });
        typeKeys(field->textBox(), QStringLiteral("++-7x"));
        QCOMPARE(values, QList<int>({ 1, 2, 1, 7, 7 }));
        QCOMPARE(field->Text(), QString());
    }

    void textFieldKeepsItsLimit()
    {
        XText *field = m_window->field();
        field->xTextBicim(XText::TextFormat, 10, Qt::AlignLeft, true, 0, 0);
        QSignalSpy changes(field, &XText::Change);
        enter(field);
        typeKeys(field->textBox(), QStringLiteral("Şişli Çarşı Ofisi"));
        QCOMPARE(field->Text(), QStringLiteral("Şişli Çarş"));
        QCOMPARE(changes.count(), 10);
        QCOMPARE(field->Value(), QVariant());
    }

private:
    void enter(XText *field);
    std::unique_ptr<FieldHarness> m_window;
};

void TestXText::enter(XText *field)
{
    m_window->fields[0]->setFocus();
    field->setFocus();
    QVERIFY(field->textBox()->hasFocus());
}

QTEST_MAIN(TestXText)
#include "tst_xtext.moc"
