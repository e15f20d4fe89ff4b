#include "books/Clock.h"
#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/SpreadsheetExport.h"
#include "testsupport/MessageLog.h"
#include "testsupport/ScreenFixture.h"
#include "testsupport/SheetCells.h"
#include "testsupport/Typing.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QLineEdit>
#include <QProcess>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

// Answers the list's events as a screen does: stores every complete row, deletes when told,
// and checks the debit/credit column (B or A; anything else is refused). Like a real screen it
// may leave a checked value unanswered (a value it only reports on) or answer it later.
class ScreenHarness : public QObject
{
public:
    enum class Check { Answer, Silent, Late };

    explicit ScreenHarness(DcList *list)
        : m_list(list)
    {
        connect(list, &DcList::UpdateData, this, [this](int row) {
            ++updates;
            if (acceptRows)
                m_list->OkUpdateData(row);
        });
        connect(list, &DcList::OnKosulVar, this, [this](int column, const QString &, const QString &value) {
            checkedTexts << m_list->Text(column);
            const QString mark = value.trimmed().toUpper();
            if (check == Check::Answer)
                m_list->OnKosulReturn(mark == u"B" || mark == u"A", mark);
            else if (check == Check::Late)
                QTimer::singleShot(0, m_list, [this, mark] { m_list->OnKosulReturn(true, mark); });
        });
        connect(list, &DcList::OperasyonDelete, this, [this](int row) { deleteRequests << row; });
        connect(list, &DcList::KeyDown, this, [this](int key, int, int) { keys << key; });
    }
    int updates = 0;
    bool acceptRows = true;
    Check check = Check::Answer;
    QStringList checkedTexts; // Text(column) as the check handler saw it
    QList<int> deleteRequests;
    QList<int> keys;

private:
    DcList *m_list;
};

// Counts the times a widget receives the focus.
class FocusCounter : public QObject
{
public:
    explicit FocusCounter(QWidget *widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::FocusIn;
        return false;
    }
};

class TestDcList : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        SetToday(QDate(2026, 11, 16));
        m_messages = std::make_unique<MessageLog>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(700, 400);
        m_list = new DcList(m_window.get());
        m_list->resize(700, 400);
        m_screen = std::make_unique<ScreenHarness>(m_list);
        m_modelTester = std::make_unique<QAbstractItemModelTester>(
            view()->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        defineColumns();
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        view()->setFocus();
    }

    void cleanup()
    {
        m_modelTester.reset();
        m_screen.reset();
        m_window.reset();
        m_messages.reset();
        SetToday(QDate());
    }

    void emptyListAndNames()
    {
        QCOMPARE(m_list->ListCount(), 0);
        QCOMPARE(m_list->CurSat(), -1);
        QCOMPARE(m_list->CreateNewCaption(), 0);
        QCOMPARE(m_list->ListCount(), 1);
        m_list->setCaptionByName(0, QStringLiteral("TUTAR"), QStringLiteral("12.5"));
        QCOMPARE(m_list->CaptionByName(0, QStringLiteral("tutar")), QStringLiteral("12.5"));
        QCOMPARE(m_list->Caption(0, 2), QStringLiteral("12.5"));
        QCOMPARE(m_list->SectionName(2), QStringLiteral("TUTAR"));
        QCOMPARE(m_list->SectionName(9), QString());
        QVERIFY(!m_list->Add(QStringLiteral("x"), QStringLiteral("yok"), QStringLiteral("Yok"), 10, 1).isValid());
        QCOMPARE(view()->model()->columnCount(), 4);
    }

    void columnsSurviveClear()
    {
        fillRows({ { "01.01.2026", "Kira", "100" }, { "02.01.2026", "Elektrik", "50" } });
        m_list->ChngSat(1);
        m_list->Clear();
        QCOMPARE(m_list->ListCount(), 0);
        QCOMPARE(m_list->CurSat(), -1);
        QCOMPARE(m_list->Baslik(1), QStringLiteral("Açıklama"));
        QCOMPARE(view()->model()->headerData(2, Qt::Horizontal).toString(), QStringLiteral("Tutar"));
        QCOMPARE(m_list->Size(0), 90);
    }

    void fullListTakesNoMoreRows()
    {
        m_modelTester.reset(); // it checks the whole model after every row
        for (int i = 0; i < 32751; ++i)
            m_list->CreateNewCaption();
        QCOMPARE(m_list->ListCount(), 32751);
        QVERIFY(m_messages->entries().isEmpty());
        QCOMPARE(m_list->CreateNewCaption(), -1);
        QCOMPARE(m_list->CreateNewCaption(), -1);
        QCOMPARE(m_list->ListCount(), 32751);
        const QStringList told = { QStringLiteral("Liste 32.751 satırda kesildi; tarih aralığını daraltınız.") };
        QCOMPARE(m_messages->texts(), told); // once for the listing
        m_list->Clear();
        for (int i = 0; i <= 32751; ++i)
            m_list->CreateNewCaption();
        QCOMPARE(m_messages->texts(), told + told); // and again for the next one
    }

    void rowTypedCellByCellIsStoredOnce()
    {
        QSignalSpy modes(m_list, &DcList::ChangeEditMode);
        QTest::keyClick(view(), Qt::Key_Return);
        QCOMPARE(m_list->CurrentMode(), 2);
        QCOMPARE(m_list->CurrentCol(), 0);
        typeInEditor(QStringLiteral("05"));
        enter(); // a day alone takes today's month and year
        QCOMPARE(m_list->Text(0), QStringLiteral("05.11.2026"));
        typeInEditor(QStringLiteral("Kira"));
        enter();
        typeInEditor(QStringLiteral("1250.5"));
        enter();
        QCOMPARE(m_screen->updates, 0);
        typeInEditor(QStringLiteral("b"));
        enter();
        QCOMPARE(m_screen->updates, 1);
        QCOMPARE(m_list->CurrentMode(), 1);
        QCOMPARE(m_list->ListCount(), 1);
        QCOMPARE(m_list->Caption(0, 0), QStringLiteral("05.11.2026"));
        QCOMPARE(m_list->Caption(0, 1), QStringLiteral("Kira"));
        QCOMPARE(m_list->Caption(0, 2), QStringLiteral("1250.5"));
        QCOMPARE(m_list->Caption(0, 3), QStringLiteral("B"));
        QCOMPARE(view()->model()->index(0, 2).data().toString(), QStringLiteral("1,250.50"));
        QCOMPARE(modes.count(), 2);
        QVERIFY(m_messages->entries().isEmpty());
    }

    void refusedCellsKeepTheEditor_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::newRow("no 31 February") << 0 << u"31022010"_s << u"Hatalı Tarih Girildi.\nDüzeltiniz."_s;
        QTest::newRow("empty text") << 1 << u""_s << u"En Az Bir Harf Girmelisiniz."_s;
        QTest::newRow("zero amount") << 2 << u"0"_s << u"Bir Sayi Girmelisiniz."_s;
        QTest::newRow("amount that rounds to zero") << 2 << u"0.00001"_s << u"Bir Sayi Girmelisiniz."_s;
    }

    void refusedCellsKeepTheEditor()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        fillRows({ { "01.01.2026", "Kira", "100", "B" } });
        m_list->ChngSat(0);
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(column);
        m_list->editor()->clear();
        typeInEditor(typed);
        enter();
        QCOMPARE(m_messages->texts(), QStringList { message });
        QCOMPARE(m_messages->entries().first().kind, Message::Kind::Exclamation);
        QCOMPARE(m_list->CurrentMode(), 2);
        QCOMPARE(m_list->CurrentCol(), column);
        QCOMPARE(m_list->editor()->cursorPosition(), 0);
        QCOMPARE(m_screen->updates, 0);
    }

    void weekendDateIsNoticedAndAccepted()
    {
        QTest::keyClick(view(), Qt::Key_Return);
        typeInEditor(QStringLiteral("07112026"));
        enter();
        QCOMPARE(m_messages->texts(),
            QStringList { QStringLiteral("Tatil gününe denk gelen tarih girdiniz.\n   07 Kasım 2026 Cumartesi") });
        QCOMPARE(m_messages->entries().first().kind, Message::Kind::Information);
        QCOMPARE(m_list->CurrentCol(), 1);
    }

    void numberEntryMayTakeThePointAgain()
    {
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(2);
        typeInEditor(QStringLiteral("12.5\b\b."));
        QCOMPARE(m_list->editor()->text(), QStringLiteral("12."));
        typeInEditor(QStringLiteral("x+"));
        QCOMPARE(m_list->editor()->text(), QStringLiteral("12.000"));
    }

    void longValueSurvivesAShortCell()
    {
        fillRows({ { "01.01.2026", "Danışmanlık ücreti", "100", "B" } });
        m_list->ChngSat(0);
        QTest::keyClick(view(), Qt::Key_Return); // opens the date cell, 10 characters at most
        enter();
        QCOMPARE(m_list->editor()->text(), QStringLiteral("Danışmanlık ücreti"));
    }

    void upAndEscapeGoBack()
    {
        QTest::keyClick(view(), Qt::Key_Return);
        typeInEditor(QStringLiteral("05"));
        enter();
        QCOMPARE(m_list->CurrentCol(), 1);
        QTest::keyClick(m_list->editor(), Qt::Key_Up);
        QCOMPARE(m_list->CurrentCol(), 0);
        QTest::keyClick(m_list->editor(), Qt::Key_Escape);
        QCOMPARE(m_list->CurrentMode(), 1);
        QCOMPARE(m_screen->updates, 0);
        QVERIFY(view()->hasFocus());
    }

    void checkedColumnWaitsForTheScreen()
    {
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(3);
        typeInEditor(QStringLiteral("x"));
        enter(); // refused by the screen: back one column
        QCOMPARE(m_list->CurrentMode(), 2);
        QCOMPARE(m_list->CurrentCol(), 2);
        m_screen->acceptRows = false;
        m_list->AlanDegisti(3);
        typeInEditor(QStringLiteral("a"));
        enter();
        QCOMPARE(m_screen->updates, 1);
        QCOMPARE(m_list->TextByName(QStringLiteral("BA")), QStringLiteral("A"));
        QCOMPARE(m_list->ListCount(), 0); // not stored until the screen answers
    }

    void deleteWaitsForTheAnswer()
    {
        fillRows({ { "01.01.2026", "Kira" }, { "02.01.2026", "Su" }, { "03.01.2026", "Gaz" } });
        m_list->ChngSat(1);
        QTest::keyClick(view(), Qt::Key_Delete);
        QCOMPARE(m_screen->deleteRequests, QList<int> { 1 });
        QCOMPARE(m_list->ListCount(), 3);
        m_list->OperasyonDeleteReturn(false);
        QCOMPARE(m_list->ListCount(), 3);
        m_list->OperasyonDeleteReturn(true);
        QCOMPARE(m_list->ListCount(), 2);
        QCOMPARE(m_list->Caption(1, 1), QStringLiteral("Gaz"));
    }

    void listThatCannotBeEditedOnlyReportsKeys()
    {
        fillRows({ { "01.01.2026", "Kira" } });
        m_list->ChngSat(0);
        m_list->setEditable(false);
        QTest::keyClick(view(), Qt::Key_Return);
        QTest::keyClick(view(), 'k');
        QTest::keyClick(view(), Qt::Key_Escape);
        QCOMPARE(m_list->CurrentMode(), 1);
        QCOMPARE(m_screen->keys, QList<int>({ Qt::Key_Return, Qt::Key_K, Qt::Key_Escape }));
    }

    void searchIgnoresCaseAndBlanks()
    {
        fillRows({ { "", "Kira" }, { "", "  ŞİŞLİ OFİS  " }, { "", "Su" } });
        QVERIFY(m_list->FindByName(QStringLiteral("Ack"), QStringLiteral("  şişli ")));
        QCOMPARE(m_list->CurSat(), 1);
        QVERIFY(!m_list->FindByName(QStringLiteral("ACK"), QStringLiteral("doğalgaz")));
        QCOMPARE(m_messages->texts(), QStringList { QStringLiteral("Aranan Kayıt Bulunamadı !") });
        QCOMPARE(m_list->CurSat(), 1);
    }

    void headerClicksSortBothWaysKeepingTies()
    {
        fillRows(
            { { "", "b1", "20" }, { "", "a1", "100" }, { "", "b2", "20" }, { "", "a2", "100" }, { "", "c", "3" } });
        m_list->setSort(true);
        const auto column = [this] {
            QStringList texts;
            for (int row = 0; row < m_list->ListCount(); ++row)
                texts << m_list->Caption(row, 1);
            return texts;
        };
        QTest::mouseClick(view()->horizontalHeader()->viewport(), Qt::LeftButton, {},
            QPoint(view()->horizontalHeader()->sectionViewportPosition(2) + 5, 5));
        const QStringList first = column();
        QTest::mouseClick(view()->horizontalHeader()->viewport(), Qt::LeftButton, {},
            QPoint(view()->horizontalHeader()->sectionViewportPosition(2) + 5, 5));
        const QStringList second = column();
        const QStringList ascending = { "c", "b1", "b2", "a1", "a2" };
        const QStringList descending = { "a1", "a2", "b1", "b2", "c" };
        QVERIFY2((first == ascending && second == descending) || (first == descending && second == ascending),
            qPrintable(first.join(u',') + u';' + second.join(u',')));
    }

    void displayByKind_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("alignment");
        QTest::newRow("number") << u"n"_s << u"1234.5"_s << u"1,234.50"_s << int(Qt::AlignRight | Qt::AlignVCenter);
        QTest::newRow("zero number") << u"N"_s << u"0"_s << u""_s << int(Qt::AlignRight | Qt::AlignVCenter);
        QTest::newRow("balance") << u"b"_s << u"-5"_s << u"-5.00"_s << int(Qt::AlignRight | Qt::AlignVCenter);
        QTest::newRow("code") << u"s"_s << u"B"_s << u"B"_s << int(Qt::AlignCenter);
        QTest::newRow("presence") << u"v"_s << u"True"_s << u"Var"_s << int(Qt::AlignLeft | Qt::AlignVCenter);
        QTest::newRow("absence") << u"V"_s << u"False"_s << u"Yok"_s << int(Qt::AlignLeft | Qt::AlignVCenter);
        QTest::newRow("yes") << u"e"_s << u"True"_s << u"Evet"_s << int(Qt::AlignLeft | Qt::AlignVCenter);
        QTest::newRow("no") << u"E"_s << u"False"_s << u"Hayır"_s << int(Qt::AlignLeft | Qt::AlignVCenter);
        QTest::newRow("other") << u"e"_s << u"Belki"_s << u"Belki"_s << int(Qt::AlignLeft | Qt::AlignVCenter);
    }

    void displayByKind()
    {
        QFETCH(QString, type);
        QFETCH(QString, value);
        QFETCH(QString, shown);
        QFETCH(int, alignment);
        m_list->Reset();
        m_list->Add(type, QStringLiteral("deger"), QStringLiteral("Değer"), 80, 1e9, 0, 2, 3);
        m_list->setCaption(m_list->CreateNewCaption(), 0, value);
        const QModelIndex cell = view()->model()->index(0, 0);
        QCOMPARE(cell.data().toString(), shown);
        QCOMPARE(cell.data(Qt::TextAlignmentRole).toInt(), alignment);
        QCOMPARE(m_list->curtext(value, 0), shown);
    }

    void lockedListAsksTheScreen()
    {
        fillRows({ { "01.01.2026", "Kira", "100", "B" } });
        m_list->ChngSat(0);
        m_list->setLocked(true);
        QList<int> asked;
        connect(m_list, &DcList::isLocked, this, [&asked](int row) { asked << row; });
        QTest::keyClick(view(), Qt::Key_Return);
        QCOMPARE(asked, QList<int> { 0 });
        QCOMPARE(m_list->CurrentMode(), 1);
        m_list->LockedReturn(false);
        QCOMPARE(m_list->CurrentMode(), 1);
        m_list->LockedReturn(true);
        QCOMPARE(m_list->CurrentMode(), 2);
        QCOMPARE(m_list->CurrentCol(), 0);
    }

    void moveNextAppendsWithAutomaticNumbering()
    {
        fillRows({ { "01.01.2026" }, { "02.01.2026" } });
        QList<int> rows;
        connect(m_list, &DcList::SatirChange, this, [&rows](int row) { rows << row; });
        m_list->ChngSat(1);
        m_list->MoveNext();
        QCOMPARE(m_list->ListCount(), 2);
        m_list->setOtoIncrement(true);
        m_list->MoveNext();
        QCOMPARE(m_list->ListCount(), 3);
        QCOMPARE(m_list->CurSat(), 2);
        m_list->MovePre();
        QCOMPARE(rows, QList<int>({ 1, 2, 1 }));
    }

    void exportWithoutASpreadsheetApplication()
    {
        SetSheetOpener([](const QString &path) {
            QFile::remove(path);
            return false;
        });
        QTest::keyClick(view(), Qt::Key_E, Qt::ControlModifier);
        SetSheetOpener(nullptr);
        QCOMPARE(
            m_messages->texts(), QStringList { QStringLiteral("Excell Yüklü Değil veya Desteklenmeyen Versiyon") });
    }

    void exportOfAnEmptyList()
    {
        QString written;
        SetSheetOpener([&written](const QString &path) {
            written = path;
            return true;
        });
        QVERIFY(m_list->SendExel(QStringLiteral("Stopaj Listesi"), QStringLiteral("16.11.2026"), QString(), QString()));
        SetSheetOpener(nullptr);
        QVERIFY(QFile::exists(written));
        const QStringList cells = SheetCells(written);
        QCOMPARE(
            cells, QStringList({ "A1=Stopaj Listesi", "B1=#46342", "A4=Tarih", "B4=Açıklama", "C4=Tutar", "D4=B/A" }));
        QFile::remove(written);
    }

    void exportWritesNumbersAndDates()
    {
        fillRows({ { "05.11.2026", "Kira", "1250.5", "B" }, { "", "", "", "" } });
        QString written;
        SetSheetOpener([&written](const QString &path) {
            written = path;
            return true;
        });
        QVERIFY(m_list->SendExel(QStringLiteral("Liste"), QString(), QString(), QString()));
        SetSheetOpener(nullptr);
        QCOMPARE(SheetCells(written),
            QStringList({ "A1=Liste", "A4=Tarih", "B4=Açıklama", "C4=Tutar", "D4=B/A", "A5=#46331", "B5=Kira",
                "C5=#1250.5", "D5=B" }));
        QFile::remove(written);
    }

    void unansweredCheckIsAskedAgain()
    {
        m_screen->check = ScreenHarness::Check::Silent;
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(3);
        typeInEditor(QStringLiteral("x"));
        enter();
        QCOMPARE(m_list->CurrentCol(), 3); // not accepted without an answer
        enter();
        QCOMPARE(m_screen->checkedTexts.size(), 2); // asked again, not swallowed
        m_screen->check = ScreenHarness::Check::Answer;
        m_list->editor()->clear();
        typeInEditor(QStringLiteral("b"));
        enter();
        QCOMPARE(m_screen->updates, 1);
        QCOMPARE(m_list->Caption(0, 3), QStringLiteral("B"));
    }

    void lateAnswerIsTaken()
    {
        m_screen->check = ScreenHarness::Check::Late;
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(3);
        typeInEditor(QStringLiteral("a"));
        enter();
        QCOMPARE(m_screen->updates, 0);
        QTRY_COMPARE(m_screen->updates, 1);
        QCOMPARE(m_list->Caption(0, 3), QStringLiteral("A"));
    }

    void checkSeesTheTypedValue()
    {
        fillRows({ { "01.01.2026", "Kira", "100", "A" } });
        m_list->ChngSat(0);
        QTest::keyClick(view(), Qt::Key_Return);
        m_list->AlanDegisti(3);
        typeInEditor(QStringLiteral("b"));
        enter();
        QCOMPARE(m_screen->checkedTexts, QStringList { "b" });
        QCOMPARE(m_list->Caption(0, 3), QStringLiteral("B"));
    }

    void unacknowledgedRowIsKept()
    {
        fillRows({ {} }); // the screens' empty row for a new entry
        m_list->ChngSat(0);
        m_screen->acceptRows = false;
        typeRow({ "05", "Kira", "1250.5", "b" });
        QCOMPARE(m_screen->updates, 1);
        QCOMPARE(m_list->Caption(0, 1), QString()); // not stored
        QCOMPARE(rowTexts(0), QStringList({ "05.11.2026", "Kira", "1,250.50", "B" })); // but still shown
        QTest::keyClick(view(), Qt::Key_Return);
        QCOMPARE(m_list->editor()->text(), QStringLiteral("05.11.2026"));
        QCOMPARE(m_list->Text(1), QStringLiteral("Kira"));
        m_screen->acceptRows = true;
        for (int cell = 0; cell < 4; ++cell)
            enter();
        QCOMPARE(m_screen->updates, 2);
        QCOMPARE(m_list->Caption(0, 1), QStringLiteral("Kira"));
        QCOMPARE(m_list->Caption(0, 2), QStringLiteral("1250.5"));
    }

    void storedRowKeepsTheFocusInTheList()
    {
        auto *next = new QLineEdit(m_window.get()); // the screen's next field
        next->show();
        const FocusCounter *visits = new FocusCounter(next);
        view()->setFocus();
        typeRow({ "05", "Kira", "10", "b" });
        QCOMPARE(m_screen->updates, 1);
        QCOMPARE(visits->count, 0);
        QVERIFY(view()->hasFocus());
    }

    void tabStaysInTheEditor()
    {
        auto *next = new QLineEdit(m_window.get()); // the screen's next field
        next->show();
        QTest::keyClick(view(), Qt::Key_Return);
        for (Qt::Key key : { Qt::Key_Tab, Qt::Key_Backtab }) {
            QTest::keyClick(m_list->editor(), key);
            QCOMPARE(m_list->CurrentMode(), 2);
            QVERIFY(m_list->editor()->hasFocus());
        }
    }

    void stepsStopAtTheEnds_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("changes");
        const int none = Qt::NoModifier;
        const int control = Qt::ControlModifier;
        QTest::newRow("up on the first row") << 0 << int(Qt::Key_Up) << none << 0 << 0;
        QTest::newRow("down on the last row") << 2 << int(Qt::Key_Down) << none << 2 << 0;
        QTest::newRow("down") << 0 << int(Qt::Key_Down) << none << 1 << 1;
        QTest::newRow("up") << 2 << int(Qt::Key_Up) << none << 1 << 1;
        QTest::newRow("ctrl+end") << 0 << int(Qt::Key_End) << control << 2 << 1;
        QTest::newRow("ctrl+home") << 2 << int(Qt::Key_Home) << control << 0 << 1;
        QTest::newRow("end alone stays") << 0 << int(Qt::Key_End) << none << 0 << 0;
        QTest::newRow("home alone stays") << 2 << int(Qt::Key_Home) << none << 2 << 0;
        QTest::newRow("page down") << 0 << int(Qt::Key_PageDown) << none << 2 << 1;
        QTest::newRow("page up") << 2 << int(Qt::Key_PageUp) << none << 0 << 1;
        QTest::newRow("page up on the first row") << 0 << int(Qt::Key_PageUp) << none << 0 << 0;
    }

    void stepsStopAtTheEnds()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(int, to);
        QFETCH(int, changes);
        fillRows({ { "01.01.2026" }, { "02.01.2026" }, { "03.01.2026" } });
        m_list->ChngSat(from);
        QSignalSpy rowChanges(m_list, &DcList::SatirChange);
        m_list->UseKeys(key, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(m_list->CurSat(), to);
        QCOMPARE(rowChanges.count(), changes);
        QCOMPARE(view()->currentIndex().row(), to);
    }

    void lockedCellOnlyTakesEnterDownAndEscape()
    {
        connect(m_list, &DcList::AlanChanged, this, [this](int column) { m_list->setCellLock(column == 1); });
        QTest::keyClick(view(), Qt::Key_Return);
        typeInEditor(QStringLiteral("05"));
        enter();
        QCOMPARE(m_list->CurrentCol(), 1);
        QTest::keyClick(m_list->editor(), Qt::Key_Up);
        QCOMPARE(m_list->CurrentCol(), 1);
        QTest::keyClick(m_list->editor(), Qt::Key_F3);
        QCOMPARE(m_screen->keys, QList<int>());
        m_list->SetTextBox(QStringLiteral("Kira"));
        QTest::keyClick(m_list->editor(), Qt::Key_Down);
        QCOMPARE(m_list->CurrentCol(), 2);
        QCOMPARE(m_list->Text(1), QStringLiteral("Kira"));
        QVERIFY(!m_list->CellLock()); // the next cell opens unlocked
    }

    void storedValuesByKind_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("stored");
        QTest::newRow("every digit kept") << 2 << u"12345678901234.56"_s << u"12345678901234.56"_s;
        QTest::newRow("largest amount") << 2 << u"999999999999999"_s << u"999999999999999"_s;
        QTest::newRow("needless zeros") << 2 << u"0012.50"_s << u"12.5"_s;
        QTest::newRow("point alone") << 2 << u"12."_s << u"12"_s;
        QTest::newRow("fraction alone") << 2 << u".05"_s << u"0.05"_s;
        QTest::newRow("negative") << 2 << u"-5.5"_s << u"-5.5"_s;
        QTest::newRow("empty number") << 2 << u""_s << u"0"_s;
        QTest::newRow("code: first character") << 3 << u"Borç"_s << u"B"_s;
        QTest::newRow("text as it is") << 1 << u" Kira "_s << u" Kira "_s;
    }

    void storedValuesByKind()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QString, stored);
        fillRows({ {} });
        m_list->ChngSat(0);
        m_list->setText(column, typed);
        m_list->OkUpdateData(0);
        QCOMPARE(m_list->Caption(0, column), stored);
    }

    void longNumberIsKeptExactly()
    {
        typeRow({ "05", "Kira", "12345678901234.56", "b" });
        QCOMPARE(m_list->Caption(0, 2), QStringLiteral("12345678901234.56"));
        QCOMPARE(rowTexts(0).at(2), QStringLiteral("12,345,678,901,234.56"));
    }

    // A number too wide for its column widens the column as it is painted; an open cell to its
    // right moves along.
    void openCellMovesWithAWidenedColumn()
    {
        fillRows({ { "05.11.2026", "Kira", "1", "B" }, { "06.11.2026", "Aidat", "2", "B" } });
        m_list->ChngSat(0);
        QTest::keyClick(view(), Qt::Key_Return);
        for (int cell = 0; cell < 3; ++cell)
            enter();
        QCOMPARE(m_list->CurrentCol(), 3);
        m_list->setCaption(1, 2, QStringLiteral("12345678901234.56"));
        view()->grab();
        QCoreApplication::processEvents();
        QVERIFY(view()->columnWidth(2) > 110);
        QCOMPARE(m_list->editor()->geometry(), view()->visualRect(view()->model()->index(0, 3)));
    }

    // A figure a pixel or a few wider than its column's room (less the text margins) widens the
    // column when painted.
    void figureJustTooWideWidensItsColumn()
    {
        fillRows({ { "05.11.2026", "Kira", "123456.78", "B" } });
        const QString shown = view()->model()->index(0, 2).data().toString();
        const int margins = 2 * (view()->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view()) + 1);
        const int fitting = QFontMetrics(view()->font()).horizontalAdvance(shown) + margins;
        for (int short_ = 1; short_ <= 3; ++short_) {
            view()->setColumnWidth(2, fitting - short_);
            view()->grab();
            QCoreApplication::processEvents();
            QCOMPARE(view()->columnWidth(2), fitting);
        }
    }

    void insertMakesRoomAtTheCurrentRow()
    {
        fillRows({ { "", "A" }, { "", "B" }, { "", "C" } });
        m_list->ChngSat(1);
        QSignalSpy rowChanges(m_list, &DcList::SatirChange);
        QTest::keyClick(view(), Qt::Key_Insert);
        QCOMPARE(m_list->ListCount(), 4);
        QCOMPARE(m_list->Caption(1, 1), QString());
        QCOMPARE(m_list->Caption(2, 1), QStringLiteral("B"));
        QCOMPARE(m_list->CurSat(), 1);
        QCOMPARE(rowChanges.count(), 1);
    }

    void focusComingAndGoing()
    {
        auto *other = new QLineEdit(m_window.get());
        other->show();
        QSignalSpy arrivals(m_list, &DcList::ListFocused);
        QCOMPARE(m_list->CurrentMode(), 1);
        other->setFocus();
        QCOMPARE(m_list->CurrentMode(), 0);
        view()->setFocus();
        QCOMPARE(m_list->CurrentMode(), 1);
        QCOMPARE(arrivals.count(), 1);
        typeRow({ "05", "Kira", "10", "b" }); // back from the editor is no arrival
        QCOMPARE(arrivals.count(), 1);
    }

    void suggestionFromAlanChanged()
    {
        connect(m_list, &DcList::AlanChanged, this, [this](int column) {
            if (column == 3 && m_list->Text(3).isEmpty())
                m_list->SetTextBox(QStringLiteral("B"));
        });
        typeRow({ "05", "Kira", "10" });
        QCOMPARE(m_list->editor()->text(), QStringLiteral("B"));
        enter(); // Enter takes the suggestion
        QCOMPARE(m_list->Caption(0, 3), QStringLiteral("B"));
        fillRows({ {} });
        m_list->ChngSat(1);
        typeRow({ "05", "Kira", "10", "a" }); // typing replaces it
        QCOMPARE(m_list->Caption(1, 3), QStringLiteral("A"));
    }

    void editorKeysAreReportedOnce()
    {
        QTest::keyClick(view(), Qt::Key_Return);
        QTest::keyClick(m_list->editor(), Qt::Key_F2);
        QTest::keyClick(m_list->editor(), Qt::Key_F8);
        QCOMPARE(m_screen->keys, QList<int>({ Qt::Key_F2, Qt::Key_F8 }));
    }

private:
    void typeRow(const QStringList &cells) { TypeGridRow(m_list, cells); }
    QStringList rowTexts(int row) const;
    void defineColumns();
    void fillRows(const QList<QStringList> &rows);
    QTableView *view() const { return m_list->view(); }
    void typeInEditor(const QString &keys) { typeKeys(m_list->editor(), keys); }
    void enter() { QTest::keyClick(m_list->editor(), Qt::Key_Return); }

    std::unique_ptr<QWidget> m_window;
    DcList *m_list = nullptr;
    std::unique_ptr<ScreenHarness> m_screen;
    std::unique_ptr<QAbstractItemModelTester> m_modelTester;
    std::unique_ptr<MessageLog> m_messages;
};

void TestDcList::defineColumns()
{
    m_list->Add(QStringLiteral("t"), QStringLiteral("tarih"), QStringLiteral("Tarih"), 90, 10, 4);
    m_list->Add(QStringLiteral("a"), QStringLiteral("ack"), QStringLiteral("Açıklama"), 200, 40, 3);
    m_list->Add(QStringLiteral("n"), QStringLiteral("tutar"), QStringLiteral("Tutar"), 110, 999999999999999.0, 2, 2, 3);
    m_list->Add(QStringLiteral("s"), QStringLiteral("ba"), QStringLiteral("B/A"), 35, 1, 6);
}

void TestDcList::fillRows(const QList<QStringList> &rows)
{
    for (const QStringList &values : rows) {
        const int row = m_list->CreateNewCaption();
        for (int c = 0; c < values.size(); ++c)
            m_list->setCaption(row, c, values[c]);
    }
}

QStringList TestDcList::rowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < view()->model()->columnCount(); ++column)
        texts << view()->model()->index(row, column).data().toString();
    return texts;
}

QTEST_MAIN(TestDcList)
#include "tst_dclist.moc"
