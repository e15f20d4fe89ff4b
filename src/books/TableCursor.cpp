#include "books/TableCursor.h"

#include "books/Database.h"
#include "books/Statement.h"
#include "books/TurkishText.h"

#include <sqlite3.h>

#include <set>

namespace {

const QString rowidColumn = QStringLiteral("_rowid_");

QString quoted(const QString &name)
{
    return name == rowidColumn ? name : u'"' + name + u'"';
}

QString columnList(const QStringList &columns)
{
    QStringList parts;
    for (const QString &column : columns)
        parts << quoted(column);
    return parts.join(QStringLiteral(", "));
}

QString placeholders(int count)
{
    QStringList marks;
    for (int i = 1; i <= count; ++i)
        marks << QStringLiteral("?%1").arg(i);
    return marks.join(QStringLiteral(", "));
}

} // namespace

TableCursor::TableCursor(Database &db, const QString &table)
    : m_db(db)
    , m_table(table)
{
}

TableCursor::~TableCursor() = default;

std::unique_ptr<TableCursor> TableCursor::open(Database &db, const QString &table)
{
    std::unique_ptr<TableCursor> cursor(new TableCursor(db, table));
    if (!cursor->loadSchema())
        return nullptr;
    cursor->moveFirst();
    return cursor;
}

bool TableCursor::loadSchema()
{
    Statement columns(m_db.handle(), QStringLiteral("SELECT name, type, \"notnull\", pk FROM pragma_table_info(?1)"));
    if (!columns.isValid() || !columns.bind(1, m_table))
        return false;
    std::vector<FieldDef> fields;
    QStringList names;
    while (columns.next()) {
        FieldDef field = FieldDef::fromDeclaredType(
            columns.column(0).toString(), columns.column(1).toString(), columns.column(2).toLongLong() != 0);
        field.autoNumber = field.autoNumber && columns.column(3).toLongLong() != 0;
        if (field.autoNumber) // the row number itself: its index needs no entry of its own
            m_indexes[field.name.toLower()] = QStringList { field.name };
        names << field.name;
        fields.push_back(field);
    }
    if (!columns.done() || fields.empty())
        return false;
    setFields(std::move(fields));
    m_columns = rowidColumn + QStringLiteral(", ") + columnList(names);
    m_order = QStringList { rowidColumn };

    Statement indexes(m_db.handle(),
        QStringLiteral("SELECT il.name, ii.name, il.\"unique\" FROM pragma_index_list(?1) AS il, "
                       "pragma_index_info(il.name) AS ii ORDER BY il.name, ii.seqno"));
    if (!indexes.isValid() || !indexes.bind(1, m_table))
        return false;
    const QString prefix = m_table.toLower() + u'_';
    std::set<QString> unique;
    while (indexes.next()) {
        const QString sqlName = indexes.column(0).toString().toLower();
        if (!sqlName.startsWith(prefix))
            continue;
        const QString name = sqlName.mid(prefix.size());
        m_indexes[name] << indexes.column(1).toString();
        if (indexes.column(2).toLongLong() != 0)
            unique.insert(name);
    }
    for (const QString &name : unique) {
        const QStringList &keyed = m_indexes[name];
        if (keyed.size() == 1 && field(fieldIndex(keyed.first())).isText())
            m_uniqueTexts << keyed.first();
    }
    return indexes.done();
}

// The file compares text keys as bytes; the program keeps them unique the Turkish way, where
// "ışık" and "IŞIK" are one key.
bool TableCursor::keyTakenElsewhere()
{
    for (const QString &column : std::as_const(m_uniqueTexts)) {
        const auto written = m_pendingValues.find(fieldIndex(column));
        if (written == m_pendingValues.end())
            continue;
        Statement *query = statement(QStringLiteral("SELECT 1 FROM \"%1\" WHERE %2 AND _rowid_ IS NOT ?2")
                                         .arg(m_table, AnySpelling(quoted(column), QStringLiteral("?1"))));
        const QVariant self = m_pending == Pending::Edit ? QVariant(m_rowid) : QVariant();
        if (!query || !query->bindAll({ written->second, self }))
            return true;
        const bool taken = query->next();
        query->reset();
        if (taken)
            return true;
    }
    return false;
}

Statement *TableCursor::statement(const QString &sql)
{
    auto found = m_statements.find(sql);
    if (found == m_statements.end())
        found = m_statements.emplace(sql, std::make_unique<Statement>(m_db.handle(), sql)).first;
    Statement *prepared = found->second.get();
    prepared->reset();
    return prepared->isValid() ? prepared : nullptr;
}

QString TableCursor::orderTerms(const QStringList &columns, const QString &suffix) const
{
    QStringList terms;
    for (const QString &column : columns) {
        const bool turkish = m_turkishOrder && column != rowidColumn && field(fieldIndex(column)).isText();
        terms << quoted(column) + (turkish ? QStringLiteral(" COLLATE TR") : QString()) + suffix;
    }
    return terms.join(QStringLiteral(", "));
}

QString TableCursor::comparison(const QStringList &columns, const QString &op) const
{
    if (columns.size() == 1)
        return orderTerms(columns) + u' ' + op + QStringLiteral(" ?1");
    return u'(' + orderTerms(columns) + QStringLiteral(") ") + op + QStringLiteral(" (")
        + placeholders(int(columns.size())) + u')';
}

QString TableCursor::selectSql(const QString &where, Direction direction) const
{
    const QString order = orderTerms(m_order, direction == Direction::Forward ? QString() : QStringLiteral(" DESC"));
    return QStringLiteral("SELECT %1 FROM \"%2\"%3 ORDER BY %4 LIMIT 1")
        .arg(m_columns, m_table, where.isEmpty() ? QString() : QStringLiteral(" WHERE ") + where, order);
}

bool TableCursor::position(const QString &sql, const QVariantList &values, bool *found)
{
    // Moving away drops a record that was being written and not stored.
    m_pending = Pending::None;
    m_pendingValues.clear();
    Statement *query = statement(sql);
    if (!query || !query->bindAll(values))
        return false;
    *found = query->next();
    if (!*found && !query->done())
        return false;
    if (*found) {
        m_rowid = query->column(0).toLongLong();
        m_row.resize(size_t(fieldCount()));
        for (int i = 0; i < fieldCount(); ++i)
            m_row[size_t(i)] = query->column(i + 1);
        m_key.clear();
        for (const QString &column : m_order)
            m_key << (column == rowidColumn ? QVariant(m_rowid) : m_row[size_t(fieldIndex(column))]);
        m_onRecord = true;
        m_bof = m_eof = false;
    }
    query->reset();
    return true;
}

bool TableCursor::moveToEnd(Direction direction)
{
    bool found = false;
    if (!position(selectSql(QString(), direction), {}, &found))
        return false;
    if (!found) {
        m_onRecord = false;
        m_bof = m_eof = true;
    }
    return found;
}

bool TableCursor::moveFirst()
{
    return moveToEnd(Direction::Forward);
}

bool TableCursor::moveLast()
{
    return moveToEnd(Direction::Backward);
}

bool TableCursor::step(Direction direction)
{
    const bool forward = direction == Direction::Forward;
    if (forward ? m_eof : m_bof)
        return false;
    if (forward ? m_bof : m_eof) // from before the first record (after the last), to the first (last)
        return forward ? moveFirst() : moveLast();
    const QString where = comparison(m_order.mid(0, m_key.size()), forward ? QStringLiteral(">") : QStringLiteral("<"));
    bool found = false;
    if (!position(selectSql(where, direction), m_key, &found))
        return false;
    if (!found) {
        m_onRecord = false;
        (forward ? m_eof : m_bof) = true;
    }
    return true;
}

bool TableCursor::moveNext()
{
    return step(Direction::Forward);
}

bool TableCursor::movePrevious()
{
    return step(Direction::Backward);
}

qint64 TableCursor::count()
{
    Statement *query = statement(QStringLiteral("SELECT count(*) FROM \"%1\"").arg(m_table));
    if (!query || !query->next())
        return -1;
    const qint64 rows = query->column(0).toLongLong();
    query->reset();
    return rows;
}

bool TableCursor::seek(const QString &indexName, const QVariant &key)
{
    m_noMatch = true;
    const auto index = m_indexes.find(indexName.toLower());
    if (index == m_indexes.end())
        return false;
    const QStringList &columns = index->second;
    QVariant stored;
    if (!field(fieldIndex(columns.first())).toStorage(key, &stored))
        return false;
    m_order = columns;
    if (!field(fieldIndex(columns.last())).autoNumber)
        m_order << rowidColumn;
    m_turkishOrder = columns.size() == 1 && m_uniqueTexts.contains(columns.first());

    // A text key is found in any of its case spellings, through the index.
    const bool text = field(fieldIndex(columns.first())).isText();
    const QString where = text ? AnySpelling(quoted(columns.first()), QStringLiteral("?1"))
                               : comparison({ columns.first() }, QStringLiteral("="));
    bool found = false;
    if (!position(selectSql(where, Direction::Forward), { stored }, &found))
        return false;
    if (!found) { // no current record; moves go on from where the key would stand
        m_onRecord = false;
        m_bof = m_eof = false;
        m_key = { stored };
    }
    m_noMatch = !found;
    return found;
}

bool TableCursor::edit()
{
    if (!m_onRecord)
        return false;
    m_pending = Pending::Edit;
    m_pendingValues.clear();
    m_refused = false;
    return true;
}

bool TableCursor::addNew()
{
    m_pending = Pending::AddNew;
    m_pendingValues.clear();
    m_refused = false;
    return true;
}

bool TableCursor::write(const QString &fieldName, const QVariant &value)
{
    const int index = fieldIndex(fieldName);
    QVariant stored;
    if (m_pending == Pending::None || index < 0 || field(index).autoNumber)
        return false;
    if (!field(index).toStorage(value, &stored)) {
        m_refused = true; // the row is not stored with a value other than the one given
        return false;
    }
    m_pendingValues[index] = stored;
    return true;
}

bool TableCursor::update()
{
    if (m_refused || keyTakenElsewhere())
        return false;
    const bool stored = m_pending == Pending::AddNew ? insertPending()
        : m_pending == Pending::Edit                 ? updatePending()
                                                     : false;
    return stored;
}

bool TableCursor::insertPending()
{
    QStringList columns;
    QVariantList values;
    for (const auto &[index, value] : m_pendingValues) {
        columns << field(index).name;
        values << value;
    }
    const QString sql = columns.isEmpty() ? QStringLiteral("INSERT INTO \"%1\" DEFAULT VALUES").arg(m_table)
                                          : QStringLiteral("INSERT INTO \"%1\" (%2) VALUES (%3)")
                                                .arg(m_table, columnList(columns), placeholders(int(columns.size())));
    Statement *insert = statement(sql);
    if (!insert || !insert->bindAll(values) || !insert->execute())
        return false;
    m_pending = Pending::None;
    m_pendingValues.clear();
    return true;
}

bool TableCursor::updatePending()
{
    QStringList assignments;
    QVariantList values;
    for (const auto &[index, value] : m_pendingValues) {
        values << value;
        assignments << QStringLiteral("%1 = ?%2").arg(quoted(field(index).name)).arg(values.size());
    }
    if (!assignments.isEmpty()) {
        values << m_rowid;
        const QString sql = QStringLiteral("UPDATE \"%1\" SET %2 WHERE _rowid_ = ?%3")
                                .arg(m_table, assignments.join(QStringLiteral(", ")))
                                .arg(values.size());
        Statement *change = statement(sql);
        if (!change || !change->bindAll(values) || !change->execute() || sqlite3_changes(m_db.handle()) != 1)
            return false;
    }
    return fetchRow(m_rowid);
}

bool TableCursor::fetchRow(qint64 rowid)
{
    bool found = false;
    return position(selectSql(QStringLiteral("_rowid_ = ?1"), Direction::Forward), { rowid }, &found) && found;
}

bool TableCursor::remove()
{
    if (!m_onRecord)
        return false;
    Statement *erase = statement(QStringLiteral("DELETE FROM \"%1\" WHERE _rowid_ = ?1").arg(m_table));
    if (!erase || !erase->bind(1, m_rowid) || !erase->execute())
        return false;
    m_onRecord = false; // moves go on from the deleted record's place
    m_pending = Pending::None;
    return true;
}

bool TableCursor::currentStored(int fieldIndex, QVariant *stored) const
{
    if (m_pending != Pending::None) {
        const auto written = m_pendingValues.find(fieldIndex);
        if (written != m_pendingValues.end()) {
            *stored = written->second;
            return true;
        }
        if (m_pending == Pending::AddNew) {
            *stored = QVariant();
            return true;
        }
    }
    if (!m_onRecord)
        return false;
    *stored = m_row[size_t(fieldIndex)];
    return true;
}
