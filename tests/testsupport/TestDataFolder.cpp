#include "testsupport/TestDataFolder.h"

#include "books/DataFiles.h"
#include "books/Parameters.h"

TestDataFolder::TestDataFolder()
{
    ResetParameters();
    SetProgramFolder(m_dir.path());
    m_ready = m_dir.isValid() && CreateDataFiles() && OpenDataFiles();
}

TestDataFolder::~TestDataFolder()
{
    CloseDataFiles();
    ResetParameters();
}

QString TestDataFolder::dataFile() const
{
    return DataFilePath();
}
