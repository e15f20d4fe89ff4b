#pragma once

#include "books/Recordset.h"

// A cursor over the rows of a query: it moves and reads; every change is refused.
class ReadOnlyCursor : public Recordset
{
public:
    bool seek(const QString &, const QVariant &) override { return false; }
    bool edit() override { return false; }
    bool addNew() override { return false; }
    bool update() override { return false; }
    bool remove() override { return false; }
    bool write(const QString &, const QVariant &) override { return false; }
};
