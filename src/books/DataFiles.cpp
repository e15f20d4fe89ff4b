#include "books/DataFiles.h"

#include "books/AccessLayer.h"
#include "books/Backups.h"
#include "books/Message.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace {

struct FieldShape
{
    const char16_t *name;
    FieldType type;
    int size;
    bool required;
    int attributes;
};

struct IndexShape
{
    const char16_t *name;
    const char16_t *fields;
    bool unique;
    bool primary;
    bool required;
};

struct TableShape
{
    const char16_t *name;
    const char16_t *createCaption;
    const char16_t *appendCaption;
    std::vector<FieldShape> fields;
    std::vector<IndexShape> indexes;
};

const std::vector<TableShape> &schema()
{
    static const std::vector<TableShape> tables = {
        { u"genel", u"Genel ", u"Genel ",
            { { u"kod", FieldType::Text, 8, true, 0 }, { u"sing", FieldType::Single, 0, false, 0 },
                { u"byt", FieldType::Byte, 0, false, 0 }, { u"integ", FieldType::Integer, 0, false, 0 },
                { u"curren", FieldType::Currency, 0, false, 0 }, { u"txt", FieldType::Text, 40, false, 0 } },
            { { u"kod", u"kod", true, true, true } } },
        { u"carkart", u"Cari Kart ", u"Carkart ",
            { { u"kod", FieldType::Text, 8, true, 0 }, { u"unv", FieldType::Text, 50, false, 0 },
                { u"adr1", FieldType::Text, 50, false, 0 }, { u"adr2", FieldType::Text, 50, false, 0 },
                { u"vd", FieldType::Text, 15, false, 0 }, { u"vn", FieldType::Text, 15, false, 0 },
                { u"ucret", FieldType::Currency, 0, false, 0 }, { u"tip", FieldType::Byte, 0, false, 0 },
                { u"not1", FieldType::Text, 50, false, 0 }, { u"not2", FieldType::Text, 50, false, 0 },
                { u"not3", FieldType::Text, 50, false, 0 }, { u"not4", FieldType::Text, 50, false, 0 } },
            { { u"kod", u"kod", true, true, true } } },
        { u"carhar", u"Cari Hareket ", u"Carhar ",
            { { u"kod", FieldType::Text, 8, true, 0 }, { u"tarih", FieldType::Date, 0, false, 0 },
                { u"islem", FieldType::Byte, 0, false, 0 }, { u"evrak", FieldType::Text, 8, false, 0 },
                { u"ack", FieldType::Text, 40, false, 0 }, { u"ba", FieldType::Byte, 0, false, 0 },
                { u"tutar", FieldType::Currency, 0, false, 0 },
                { u"oto", FieldType::Long, 0, false, AutoIncrementField } },
            // kodtarih serves the account listings and balances, which read one account's rows by
            // date; kodbakiye holds what the debit/credit list sums, so it reads no row itself;
            // islemtarih the cash book, which reads the cash rows of a day and sums those before.
            { { u"oto", u"oto", false, true, false }, { u"kodtarih", u"kod;tarih", false, false, false },
                { u"kodbakiye", u"kod;ba;tarih;tutar", false, false, false },
                { u"islemtarih", u"islem;tarih;ba;tutar", false, false, false } } },
        { u"defter", u"Meslek Defteri ", u"Meslek Defteri ",
            { { u"sira", FieldType::Integer, 0, false, 0 }, { u"tarih", FieldType::Date, 0, false, 0 },
                { u"islem", FieldType::Byte, 0, false, 0 }, { u"evrak", FieldType::Text, 8, false, 0 },
                { u"cari", FieldType::Text, 8, false, 0 }, { u"ack", FieldType::Text, 40, false, 0 },
                { u"brut", FieldType::Currency, 0, false, 0 }, { u"stopaj", FieldType::Currency, 0, false, 0 },
                { u"fon", FieldType::Currency, 0, false, 0 }, { u"kdv", FieldType::Currency, 0, false, 0 },
                { u"oto", FieldType::Long, 0, false, AutoIncrementField } },
            // tarihislem serves the book of a year and the monthly report, which read by date;
            // islemcari the withholding list, which reads the income rows by payer and date.
            { { u"oto", u"oto", false, true, false }, { u"tarihislem", u"tarih;islem", false, false, false },
                { u"islemcari", u"islem;cari;tarih", false, false, false } } },
        { u"duzen", u"Dizayn ", u"Dizayn ",
            { { u"sira", FieldType::Long, 0, true, AutoIncrementField }, { u"no", FieldType::Integer, 0, false, 0 },
                { u"uzun", FieldType::Single, 0, false, 0 }, { u"sol", FieldType::Single, 0, false, 0 },
                { u"ust", FieldType::Single, 0, false, 0 }, { u"txt", FieldType::Text, 40, false, 0 } },
            { { u"sira", u"sira", false, true, false } } },
    };
    return tables;
}

// An issuer's receipt is sought by its number, to find a second ETTN for it.
const QString makbuzNumberIndex
    = QStringLiteral("CREATE INDEX IF NOT EXISTS \"makbuz_makbuzno\" ON \"makbuz\" (\"makbuzno\")");

// The program's own table beside the five: what a receipt keeps that they have no column for (the
// VAT its payer withheld; the identity of a document brought in from the portal). One row per
// receipt, keyed by its ledger row's oto.
const QStringList &ownTables()
{
    static const QStringList sql = {
        QStringLiteral(
            "CREATE TABLE \"makbuz\" (\"defter\" INTEGER PRIMARY KEY, \"carhar\" INTEGER, "
            "\"tevkoran\" INTEGER, \"tevkifat\" CURRENCY CHECK(typeof(\"tevkifat\") IN ('integer', 'null')), "
            "\"tevkkod\" TEXT, \"makbuzno\" TEXT, \"ettn\" TEXT, \"vkn\" TEXT, \"dosya\" TEXT)"),
        QStringLiteral("CREATE UNIQUE INDEX \"makbuz_ettn\" ON \"makbuz\" (\"ettn\")"),
        makbuzNumberIndex,
    };
    return sql;
}

// Runs the steps in one transaction: all of them, or (at the first failure) none.
bool runAllOrNothing(Database &db, const QStringList &steps)
{
    if (!db.run(QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    for (const QString &step : steps)
        if (!db.run(step)) {
            db.run(QStringLiteral("ROLLBACK"));
            return false;
        }
    if (db.run(QStringLiteral("COMMIT")))
        return true;
    db.run(QStringLiteral("ROLLBACK"));
    return false;
}

// Books made before the program's own table get it, empty, when they open; books made before
// its index of receipt numbers get that index. No row changes.
bool addOwnTables(Database &db)
{
    return !db.texts(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'makbuz'"))
                .isEmpty()
        ? db.run(makbuzNumberIndex)
        : runAllOrNothing(db, ownTables());
}

QString &programFolder()
{
    static QString folder;
    return folder;
}

// The table's definition, or nullptr when it cannot be begun.
std::unique_ptr<TableDef> defineTable(Database &db, const TableShape &shape)
{
    std::unique_ptr<TableDef> table;
    if (!TableCreate(db, table, QString::fromUtf16(shape.name)))
        return nullptr;
    for (const FieldShape &field : shape.fields)
        FieldCreate(*table, QString::fromUtf16(field.name), int(field.type), field.required, true, field.attributes,
            field.size);
    for (const IndexShape &index : shape.indexes)
        IndexCreate(*table, QString::fromUtf16(index.name), QString::fromUtf16(index.fields), index.unique,
            index.primary, false, index.required);
    return table;
}

bool createTable(Database &db, const TableShape &shape)
{
    const std::unique_ptr<TableDef> table = defineTable(db, shape);
    if (!table) {
        Message::exclamation(QString::fromUtf16(shape.createCaption) + QStringLiteral("\nSql Tablosu Yaratılamadı."));
        return false;
    }
    if (!TableAppend(db, *table)) {
        Message::exclamation(QString::fromUtf16(shape.appendCaption) + QStringLiteral("\nSql Tablosu eklenemedi."));
        return false;
    }
    return true;
}

// A file made before an index joined the schema gets it when it opens: the lookup indexes change
// no row and no field.
bool addMissingIndexes(Database &db)
{
    for (const TableShape &table : schema())
        for (const IndexShape &index : table.indexes) {
            if (index.unique || index.primary)
                continue;
            QStringList columns;
            for (const QString &column : QString::fromUtf16(index.fields).split(u';'))
                columns << u'"' + column + u'"';
            const QString tableName = QString::fromUtf16(table.name);
            if (!db.run(QStringLiteral("CREATE INDEX IF NOT EXISTS \"%1_%2\" ON \"%1\" (%3)")
                            .arg(tableName, QString::fromUtf16(index.name), columns.join(u','))))
                return false;
        }
    return true;
}

// Books made while the text columns declared the program's own collation, which no other tool
// knows: their tables are made anew with plain text columns. Every row keeps its values and its
// record number, and the next record number stays where it was.
QStringList tablesWithOwnCollation(Database &db)
{
    QStringList tables;
    for (const TableShape &table : schema()) {
        const QString name = QString::fromUtf16(table.name);
        const QStringList sql
            = db.texts(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = '%1'").arg(name));
        if (!sql.isEmpty() && sql.first().contains(QStringLiteral("COLLATE TR")))
            tables << name;
    }
    return tables;
}

QStringList rebuildSteps(Database &db, const TableShape &shape)
{
    const QString name = QString::fromUtf16(shape.name);
    const QString old = name + QStringLiteral("_eski");
    QStringList columns;
    for (const FieldShape &field : shape.fields)
        columns << u'"' + QString::fromUtf16(field.name) + u'"';
    QStringList steps { QStringLiteral("ALTER TABLE \"%1\" RENAME TO \"%2\"").arg(name, old) };
    for (const QString &index : db.texts(
             QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = '%1' AND sql NOT NULL")
                 .arg(name)))
        steps << QStringLiteral("DROP INDEX \"%1\"").arg(index);
    // The table, its rows, then its indexes: built from sorted rows rather than row by row.
    const QStringList creation = defineTable(db, shape)->creationSql();
    steps << creation.first();
    steps << QStringLiteral("INSERT INTO \"%1\" (%3) SELECT %3 FROM \"%2\"").arg(name, old, columns.join(u','));
    // The renamed table took its counter along; the new table gets it back.
    steps << QStringLiteral("DELETE FROM sqlite_sequence WHERE name = '%1'").arg(name);
    steps << QStringLiteral("UPDATE sqlite_sequence SET name = '%1' WHERE name = '%2'").arg(name, old);
    steps << QStringLiteral("DROP TABLE \"%1\"").arg(old);
    steps << creation.mid(1);
    return steps;
}

// All tables in one transaction after a copy of the books; on any failure the file stays as it
// was (the program reads both forms).
void dropOwnCollation(Database &db)
{
    const QStringList tables = tablesWithOwnCollation(db);
    if (tables.isEmpty() || !Backups::make(db))
        return;
    QStringList steps;
    for (const TableShape &table : schema())
        if (tables.contains(QString::fromUtf16(table.name)))
            steps << rebuildSteps(db, table);
    runAllOrNothing(db, steps);
}

// "xsmm.dat.yeni-<process>": a new file while its tables are being made.
const QString buildingMark = QStringLiteral(".yeni-");

void removeUnfinishedBuilds()
{
    QDir folder(ProgramFolder());
    const QString pattern = QStringLiteral("xsmm.dat") + buildingMark + u'*';
    for (const QString &name : folder.entryList({ pattern }, QDir::Files))
        folder.remove(name);
}

void reportNoFile()
{
    Message::exclamation(QStringLiteral("\nSql Dosyası Yaratılamadı."));
}

// Makes the five tables in a new, empty file; true when all of them exist. Every failure has
// been reported.
bool buildSchema(const QString &path)
{
    QFile empty(path);
    const bool made = empty.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    empty.close();
    std::unique_ptr<Database> db = made ? Database::open(path) : nullptr;
    if (!db) {
        reportNoFile();
        return false;
    }
    for (const TableShape &table : schema())
        if (!createTable(*db, table))
            return false;
    if (!addOwnTables(*db)) {
        reportNoFile();
        return false;
    }
    return true;
}

// The new name of a file is on disk only when its folder is.
void syncFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
}

// Every table has the columns, types, required flags and keys that the program makes: compared
// with a schema made in memory. Only reads the file.
bool hasOurTables(Database &file)
{
    std::unique_ptr<Database> reference = Database::inMemory();
    if (!reference)
        return false;
    for (const TableShape &table : schema()) {
        if (!createTable(*reference, table))
            return false;
        const QString columns = QStringLiteral("SELECT name || ' ' || type || ' ' || \"notnull\" || ' ' || pk "
                                               "FROM pragma_table_info('%1')")
                                    .arg(QString::fromUtf16(table.name));
        int error = 0;
        const QStringList found = file.texts(columns, &error);
        if (error != SQLITE_OK || found != reference->texts(columns))
            return false;
    }
    return true;
}

DataFileState stateOf(int error)
{
    switch (error) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return DataFileState::InUse;
    case SQLITE_NOTADB:
        return DataFileState::Foreign;
    case SQLITE_CORRUPT:
        return DataFileState::Damaged;
    default:
        return DataFileState::Failed;
    }
}

DataFileState openChecked(DataFiles &files)
{
    if (!QFileInfo::exists(DataFilePath()))
        return DataFileState::Missing;
    int error = SQLITE_OK;
    files.db = Database::open(DataFilePath(), &error);
    if (!files.db)
        return stateOf(error);
    if (!hasOurTables(*files.db))
        return DataFileState::Foreign;
    const QStringList check = files.db->texts(QStringLiteral("PRAGMA quick_check"), &error);
    if (error != SQLITE_OK)
        return stateOf(error);
    if (check != QStringList { QStringLiteral("ok") })
        return DataFileState::Damaged;
    dropOwnCollation(*files.db);
    const bool open = RsOpen(*files.db, files.genel, QStringLiteral("genel"))
        && RsOpen(*files.db, files.carkart, QStringLiteral("carkart"))
        && RsOpen(*files.db, files.carhar, QStringLiteral("carhar"))
        && RsOpen(*files.db, files.defter, QStringLiteral("defter"))
        && RsOpen(*files.db, files.duzen, QStringLiteral("duzen"));
    if (!open)
        return DataFileState::Failed;
    if (!addMissingIndexes(*files.db) || !addOwnTables(*files.db))
        return stateOf(sqlite3_errcode(files.db->handle()) & 0xff);
    return DataFileState::Open;
}

} // namespace

DataFiles &dataFiles()
{
    static DataFiles files;
    return files;
}

QString ProgramFolder()
{
    return programFolder();
}

void SetProgramFolder(const QString &folder)
{
    programFolder() = folder.endsWith(QDir::separator()) || folder.endsWith(u'/') ? folder : folder + u'/';
}

QString DataFilePath()
{
    return ProgramFolder() + QStringLiteral("xsmm.dat");
}

bool OpenDataFiles(DataFileState *why)
{
    CloseDataFiles();
    const DataFileState state = openChecked(dataFiles());
    if (why)
        *why = state;
    return state == DataFileState::Open;
}

bool CreateDataFiles()
{
    CloseDataFiles();
    const QString path = DataFilePath();
    if (QFileInfo::exists(path)) {
        reportNoFile();
        return false;
    }
    removeUnfinishedBuilds();
    const QString building = QStringLiteral("%1%2%3").arg(path, buildingMark).arg(QCoreApplication::applicationPid());
    if (buildSchema(building)) {
        if (QFile::rename(building, path)) { // never over a file that appeared meanwhile
            syncFolder(ProgramFolder());
            return true;
        }
        reportNoFile();
    }
    QFile::remove(building);
    QFile::remove(building + QStringLiteral("-journal"));
    return false;
}

void CloseDataFiles()
{
    DataFiles &files = dataFiles();
    files.genel.reset();
    files.carkart.reset();
    files.carhar.reset();
    files.defter.reset();
    files.duzen.reset();
    files.db.reset();
}

bool CariExists(const QString &code)
{
    return RsSeek(*dataFiles().carkart, QStringLiteral("kod"), code);
}
