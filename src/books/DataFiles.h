#pragma once

#include "books/Database.h"
#include "books/Recordset.h"

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

// Why "xsmm.dat" did not open.
enum class DataFileState {
    Open,
    Missing, // no file yet
    InUse, // another program holds it
    Foreign, // not a database, or its tables are not ours
    Damaged, // the engine found a damaged page
    Failed, // anything else (not writable, no cursor)
};

// Opens "xsmm.dat" and a cursor on each table; false at the first failure, and then `why`
// says what was found. A file that is in use, not ours or damaged is only read, never written.
bool OpenDataFiles(DataFileState *why = nullptr);
// Creates "xsmm.dat" with its five tables and their indexes; never touches an existing file.
// The file is built under another name and takes its own only when it is complete, so that an
// interrupted creation leaves no "xsmm.dat" behind.
bool CreateDataFiles();
// Closes the file and the cursors.
void CloseDataFiles();
// True when an account card has this code; the carkart cursor then stands on it.
bool CariExists(const QString &code);
