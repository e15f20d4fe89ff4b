#include "controls/DcCellEditor.h"
#include "controls/DcList.h"
#include "controls/SpreadsheetExport.h"
#include "core/Clock.h"
#include "testsupport/MessageLog.h"
#include "testsupport/Typing.h"

#include <QHeaderView>
#include <QProcess>
#include <QTableView>
#include <QtTest>

// Answers the list's events as a screen does: stores every complete row, deletes when told,
// and checks the debit/credit column (B or A; anything else is refused).
class ScreenHarness : public QObject
{
public:
    explicit ScreenHarness(DcList *list)
        : m_list(list)
    {
        connect(list, &DcList::UpdateData, this, [this](int row) {
            ++updates;
            if (acceptRows)
                m_list->OkUpdateData(row);
        });
        connect(list, &DcList::OnKosulVar, this, [this](int, const QString &, const QString &value) {
            const QString mark = value.trimmed().toUpper();
            m_list->OnKosulReturn(mark == u"B" || mark == u"A", mark);
        });
        connect(list, &DcList::OperasyonDelete, this, [this](int row) { deleteRequests << row; });
        connect(list, &DcList::KeyDown, this, [this](int key, int, int) { keys << key; });
    }
    int updates = 0;
    bool acceptRows = true;
    QList<int> deleteRequests;
    QList<int> keys;

private:
    DcList *m_list;
};

class TestDcList : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void emptyListAndNames();
    void columnsSurviveClear();
    void fullListTakesNoMoreRows();
    void rowTypedCellByCellIsStoredOnce();
    void refusedCellsKeepTheEditor_data();
    void refusedCellsKeepTheEditor();
    void weekendDateIsNoticedAndAccepted();
    void numberEntryMayTakeThePointAgain();
    void longValueSurvivesAShortCell();
    void upAndEscapeGoBack();
    void checkedColumnWaitsForTheScreen();
    void deleteWaitsForTheAnswer();
    void listThatCannotBeEditedOnlyReportsKeys();
    void searchIgnoresCaseAndBlanks();
    void headerClicksSortBothWaysKeepingTies();
    void displayByKind_data();
    void displayByKind();
    void lockedListAsksTheScreen();
    void moveNextAppendsWithAutomaticNumbering();
    void exportWithoutASpreadsheetApplication();
    void exportOfAnEmptyList();

private:
    void defineColumns();
    void fillRows(const QList<QStringList> &rows);
    QTableView *view() const { return m_list->view(); }
    void typeInEditor(const QString &keys) { typeKeys(m_list->editor(), keys); }
    void enter() { QTest::keyClick(m_list->editor(), Qt::Key_Return); }

    std::unique_ptr<QWidget> m_window;
    DcList *m_list = nullptr;
    std::unique_ptr<ScreenHarness> m_screen;
    std::unique_ptr<MessageLog> m_messages;
};

void TestDcList::init()
{
    SetToday(QDate(2026, 11, 16));
    m_messages = std::make_unique<MessageLog>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(700, 400);
    m_list = new DcList(m_window.get());
    m_list->resize(700, 400);
    m_screen = std::make_unique<ScreenHarness>(m_list);
    defineColumns();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    view()->setFocus();
}

void TestDcList::cleanup()
{
    m_screen.reset();
    m_window.reset();
    m_messages.reset();
    SetToday(QDate());
}

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

void TestDcList::emptyListAndNames()
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

void TestDcList::columnsSurviveClear()
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

void TestDcList::fullListTakesNoMoreRows()
{
    for (int i = 0; i < 32751; ++i)
        m_list->CreateNewCaption();
    QCOMPARE(m_list->ListCount(), 32751);
    QCOMPARE(m_list->CreateNewCaption(), -1);
    QCOMPARE(m_list->ListCount(), 32751);
}

void TestDcList::rowTypedCellByCellIsStoredOnce()
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

void TestDcList::refusedCellsKeepTheEditor_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("no 31 February") << 0 << "31022010"
                                    << "Hatalı Tarih Girildi.\nDüzeltiniz.";
    QTest::newRow("empty text") << 1 << ""
                                << "En Az Bir Harf Girmelisiniz.";
    QTest::newRow("zero amount") << 2 << "0"
                                 << "Bir Sayi Girmelisiniz.";
}

void TestDcList::refusedCellsKeepTheEditor()
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

void TestDcList::weekendDateIsNoticedAndAccepted()
{
    QTest::keyClick(view(), Qt::Key_Return);
    typeInEditor(QStringLiteral("07112026"));
    enter();
    QCOMPARE(m_messages->texts(),
        QStringList { QStringLiteral("Tatil gününe denk gelen tarih girdiniz.\n   07 Kasım 2026 Cumartesi") });
    QCOMPARE(m_messages->entries().first().kind, Message::Kind::Information);
    QCOMPARE(m_list->CurrentCol(), 1);
}

void TestDcList::numberEntryMayTakeThePointAgain()
{
    QTest::keyClick(view(), Qt::Key_Return);
    m_list->AlanDegisti(2);
    typeInEditor(QStringLiteral("12.5\b\b."));
    QCOMPARE(m_list->editor()->text(), QStringLiteral("12."));
    typeInEditor(QStringLiteral("x+"));
    QCOMPARE(m_list->editor()->text(), QStringLiteral("12.000"));
}

void TestDcList::longValueSurvivesAShortCell()
{
    fillRows({ { "01.01.2026", "Danışmanlık ücreti", "100", "B" } });
    m_list->ChngSat(0);
    QTest::keyClick(view(), Qt::Key_Return); // opens the date cell, 10 characters at most
    enter();
    QCOMPARE(m_list->editor()->text(), QStringLiteral("Danışmanlık ücreti"));
}

void TestDcList::upAndEscapeGoBack()
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

void TestDcList::checkedColumnWaitsForTheScreen()
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

void TestDcList::deleteWaitsForTheAnswer()
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

void TestDcList::listThatCannotBeEditedOnlyReportsKeys()
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

void TestDcList::searchIgnoresCaseAndBlanks()
{
    fillRows({ { "", "Kira" }, { "", "  ŞİŞLİ OFİS  " }, { "", "Su" } });
    QVERIFY(m_list->FindByName(QStringLiteral("Ack"), QStringLiteral("  şişli ")));
    QCOMPARE(m_list->CurSat(), 1);
    QVERIFY(!m_list->FindByName(QStringLiteral("ACK"), QStringLiteral("doğalgaz")));
    QCOMPARE(m_messages->texts(), QStringList { QStringLiteral("Aranan Kayıt Bulunamadı !") });
    QCOMPARE(m_list->CurSat(), 1);
}

void TestDcList::headerClicksSortBothWaysKeepingTies()
{
    fillRows({ { "", "b1", "20" }, { "", "a1", "100" }, { "", "b2", "20" }, { "", "a2", "100" }, { "", "c", "3" } });
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

void TestDcList::displayByKind_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("alignment");
    QTest::newRow("number") << "n"
                            << "1234.5"
                            << "1,234.50" << int(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("zero number") << "N"
                                 << "0"
                                 << "" << int(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("balance") << "b"
                             << "-5"
                             << "-5.00" << int(Qt::AlignRight | Qt::AlignVCenter);
    QTest::newRow("code") << "s"
                          << "B"
                          << "B" << int(Qt::AlignCenter);
    QTest::newRow("presence") << "v"
                              << "True"
                              << "Var" << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("absence") << "V"
                             << "False"
                             << "Yok" << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("yes") << "e"
                         << "True"
                         << "Evet" << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("no") << "E"
                        << "False"
                        << "Hayır" << int(Qt::AlignLeft | Qt::AlignVCenter);
    QTest::newRow("other") << "e"
                           << "Belki"
                           << "Belki" << int(Qt::AlignLeft | Qt::AlignVCenter);
}

void TestDcList::displayByKind()
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

void TestDcList::lockedListAsksTheScreen()
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

void TestDcList::moveNextAppendsWithAutomaticNumbering()
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

void TestDcList::exportWithoutASpreadsheetApplication()
{
    SetSheetOpener([](const QString &path) {
        QFile::remove(path);
        return false;
    });
    QTest::keyClick(view(), Qt::Key_E, Qt::ControlModifier);
    SetSheetOpener(nullptr);
    QCOMPARE(m_messages->texts(), QStringList { QStringLiteral("Excell Yüklü Değil veya Desteklenmeyen Versiyon") });
}

void TestDcList::exportOfAnEmptyList()
{
    QString written;
    SetSheetOpener([&written](const QString &path) {
        written = path;
        return true;
    });
    QVERIFY(m_list->SendExel(QStringLiteral("Stopaj Listesi"), QStringLiteral("16.11.2026"), QString(), QString()));
    SetSheetOpener(nullptr);
    QVERIFY(QFile::exists(written));
    // The sheet's cells, as "reference=value" (shared strings resolved), read with Python's zipfile.
    const QString script
        = QStringLiteral("import re,sys,zipfile\n"
                         "z=zipfile.ZipFile(sys.argv[1])\n"
                         "s=re.findall(r'<t[^>]*>([^<]*)</t>',z.read('xl/sharedStrings.xml').decode())\n"
                         "for a,b in re.findall(r'<c ([^>]*)>(.*?)</c>',z.read('xl/worksheets/sheet1.xml').decode()):\n"
                         "  r=re.search(r'r=\"(\\w+)\"',a).group(1); t=re.search(r't=\"(\\w+)\"',a); "
                         "v=re.search(r'<v>([^<]*)</v>',b).group(1)\n"
                         "  print(r+'='+(s[int(v)] if t and t.group(1)=='s' else v))\n");
    QProcess python;
    python.start(QStringLiteral("python3"), { QStringLiteral("-c"), script, written });
    QVERIFY(python.waitForFinished(20000));
    const QStringList cells = QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(cells, QStringList({ "A1=Stopaj Listesi", "B1=46342", "A4=Tarih", "B4=Açıklama", "C4=Tutar", "D4=B/A" }));
    QFile::remove(written);
}

QTEST_MAIN(TestDcList)
#include "tst_dclist.moc"
