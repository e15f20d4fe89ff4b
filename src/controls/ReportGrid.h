#pragma once

#include "printing/ReportColumn.h"

#include <vector>

class DcList;

// The listed columns of a report's declaration as the columns of a read-only grid: texts "a",
// dates "t", numbers "n" without decimals or groups, amounts "n" with the parameter decimals.
void DefineReportColumns(DcList &list, const ReportColumns &columns);
// Appends rows of typed cells, one cell per declared column, showing those of the listed columns
// (GridCellText), with one notice to the view. False when the grid could not take them all.
bool AddReportRows(DcList &list, const ReportColumns &columns, const std::vector<QVariantList> &rows);
