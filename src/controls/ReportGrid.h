#pragma once

#include "printing/ReportColumn.h"

class DcList;

// The listed columns of a report's declaration as the columns of a read-only grid: texts "a",
// dates "t", numbers "n" without decimals or groups, amounts "n" with the parameter decimals.
void DefineReportColumns(DcList &list, const ReportColumns &columns);
// Appends a row of typed cells, one per declared column, showing those of the listed columns
// (GridCellText). False when the grid is full.
bool AddReportRow(DcList &list, const ReportColumns &columns, const QVariantList &cells);
