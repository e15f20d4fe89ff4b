#include "testsupport/BooksFixture.h"

#include "books/DataFiles.h"
#include "books/Parameters.h"

BooksFixture::BooksFixture()
{
    ResetParameters();
    SetProgramFolder(m_dir.path());
    m_ready = m_dir.isValid() && CreateDataFiles() && OpenDataFiles();
}

BooksFixture::~BooksFixture()
{
    CloseDataFiles();
    ResetParameters();
}

QString BooksFixture::dataFile() const
{
    return DataFilePath();
}
