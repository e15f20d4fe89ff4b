#include "accounts/AccountLookup.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "controls/DcList.h"
#include "controls/GridFill.h"
#include "controls/OpenInMain.h"
#include "controls/Screen.h"
#include "controls/XText.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QString &selectedCode()
{
    static QString code;
    return code;
}

} // namespace

QString SelectedAccountCode()
{
    return selectedCode();
}

void SetSelectedAccountCode(const QString &code)
{
    selectedCode() = code;
}

AccountLookup::AccountLookup(QWidget *parent)
    : QDialog(parent)
    , m_code(new XText(this))
    , m_title(new XText(this))
    , m_list(new DcList(this))
{
    setObjectName(QStringLiteral("Form5"));
    setWindowTitle(QStringLiteral("Hesap Rehberi"));
    if (QMdiArea *area = MainArea())
        setWindowIcon(area->window()->windowIcon());
    m_code->setObjectName(QStringLiteral("xtext1_0"));
    m_title->setObjectName(QStringLiteral("xtext1_1"));
    m_list->setObjectName(QStringLiteral("dclist1"));
    m_code->xTextBicim(XText::TextFormat, 8, Qt::AlignLeft, true, 0, 0);
    m_title->xTextBicim(XText::TextFormat, 40, Qt::AlignLeft, true, 0, 0);
    m_list->Add(QStringLiteral("a"), QStringLiteral("kod"), QStringLiteral("Kod"), 100, 8);
    m_list->Add(QStringLiteral("a"), QStringLiteral("unvan"), QStringLiteral("Ünvan"), 300, 40);
    m_list->setEditable(false);
    m_list->setAccessibleName(QStringLiteral("Hesaplar"));
    m_list->view()->setAccessibleName(QStringLiteral("Hesaplar"));

    auto *ok = new QPushButton(QStringLiteral("Tamam"), this);
    ok->setObjectName(QStringLiteral("tamam"));
    auto *cancelButton = new QPushButton(QStringLiteral("Vazgeç"), this);
    cancelButton->setObjectName(QStringLiteral("vazgec"));
    ok->setAutoDefault(false);
    cancelButton->setAutoDefault(false);

    auto *fields = new QGridLayout;
    fields->addWidget(LabelFor(QStringLiteral("Kod"), m_code, this), 0, 0);
    fields->addWidget(m_code, 0, 1);
    fields->addWidget(LabelFor(QStringLiteral("Ünvan"), m_title, this), 1, 0);
    fields->addWidget(m_title, 1, 1);
    fields->setColumnStretch(1, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancelButton);
    auto *page = new QVBoxLayout(this);
    page->addLayout(fields);
    page->addWidget(m_list, 1);
    page->addLayout(buttons);
    resize(460, 420);

    connect(m_code, &XText::Change, this, &AccountLookup::search);
    connect(m_title, &XText::Change, this, &AccountLookup::search);
    connect(m_code, &XText::Left, this, [this] {
        if (!m_code->Text().isEmpty())
            m_list->setFocus();
    });
    connect(m_list, &DcList::SatirChange, this, [this](int row) { m_currentKod = m_list->Caption(row, 0); });
    connect(m_list, &DcList::KeyDown, this, [this](int key, int, int) {
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            choose();
        else if (key == Qt::Key_Escape)
            cancel();
    });
    connect(ok, &QPushButton::clicked, this, &AccountLookup::choose);
    connect(cancelButton, &QPushButton::clicked, this, &AccountLookup::cancel);

    SetSelectedAccountCode(QString());
    setTabOrder(m_code, m_title);
    setTabOrder(m_title, m_list);
    m_code->setFocus();
    search();
}

// The fields lose the focus while the dialog is taken down; their signals must not reach it then.
AccountLookup::~AccountLookup()
{
    m_code->disconnect(this);
    m_title->disconnect(this);
    m_list->disconnect(this);
}

void AccountLookup::search()
{
    const bool byCode = !m_code->Text().isEmpty();
    const QString sql = byCode
        ? QStringLiteral("SELECT kod, unv AS unvan FROM carkart WHERE startsWith(kod, ?1) ORDER BY kod COLLATE TR")
        : QStringLiteral("SELECT kod, unv AS unvan FROM carkart WHERE startsWith(unv, ?1) ORDER BY unv COLLATE TR");
    std::unique_ptr<Recordset> rows;
    m_list->Clear();
    if (QueryWalk(*dataFiles().db, rows, sql, { byCode ? m_code->Text() : m_title->Text() }))
        FillGrid(*m_list, *rows);
    // The first row is current from the start: Enter or "Tamam" returns the row the list shows.
    m_currentKod.clear();
    if (m_list->ListCount() > 0)
        m_list->ChngSat(0);
}

void AccountLookup::choose()
{
    SetSelectedAccountCode(m_currentKod);
    accept();
}

void AccountLookup::cancel()
{
    SetSelectedAccountCode(QString());
    reject();
}

void AttachAccountLookup(XText *field)
{
    field->setButton(true);
    field->setPicture(field->style()->standardIcon(QStyle::SP_FileDialogContentsView));
    QObject::connect(field, &XText::ButtonClick, field, [field] {
        const QString code = ChooseAccount(field->window());
        if (!code.isEmpty())
            field->setText(code);
        field->setFocus();
    });
}

QString ChooseAccount(QWidget *parent)
{
    AccountLookup lookup(parent);
    lookup.exec();
    const QString code = SelectedAccountCode();
    SetSelectedAccountCode(QString());
    return code;
}
