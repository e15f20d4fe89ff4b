#pragma once

class DcList;
class QString;
class QVariant;
class Recordset;

// Appends a grid row for every record of a query, from the current record on, and fills each
// grid column whose field name the query has: dates as "dd.MM.yyyy", amounts and numbers in
// plain decimal notation, texts as they are. Answers the number of rows added (it stops when
// the grid is full).
int FillGrid(DcList &list, Recordset &records);
// A value as a grid cell holds it: a date as "dd.MM.yyyy", an amount in plain decimal notation,
// anything else as its text.
QString GridCellText(const QVariant &value);
