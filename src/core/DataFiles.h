#pragma once

#include "core/Database.h"
#include "core/Recordset.h"

#include <QString>

#include <memory>

// The program's open data file and its five long-lived table cursors.
struct DataFiles
{
    std::unique_ptr<Database> db;
    std::unique_ptr<Recordset> genel;
    std::unique_ptr<Recordset> carkart;
    std::unique_ptr<Recordset> carhar;
    std::unique_ptr<Recordset> defter;
    std::unique_ptr<Recordset> duzen;
};

DataFiles &dataFiles();

// The folder of the data file, always ending in a separator.
QString ProgramFolder();
void SetProgramFolder(const QString &folder);
QString DataFilePath();

// Opens "xsmm.dat" and a cursor on each table; false at the first failure.
bool OpenDataFiles();
// Creates "xsmm.dat" with its five tables and their indexes; never touches an existing file.
bool CreateDataFiles();
// Closes the file and the cursors.
void CloseDataFiles();
// True when an account card has this code; the carkart cursor then stands on it.
bool CariExists(const QString &code);
