#pragma once

#include "books/Recordset.h"

class Statement;

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

protected:
    // The query's columns as the cursor's fields, typed by what they were declared as.
    void takeColumnsOf(const Statement &query);
};
