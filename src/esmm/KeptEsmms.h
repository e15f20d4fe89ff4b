#pragma once

#include "books/Statement.h"
#include "esmm/EsmmDocument.h"

#include <optional>

// The e-SMMs the books already hold, as their own table, the ledger and the cards keep them.
class KeptEsmms
{
public:
    KeptEsmms();

    // The document of that ETTN as the books keep it (number, issuer, payer, date and amounts);
    // without a date when its ledger row was deleted on its own (by an earlier version).
    std::optional<EsmmDocument> find(const QString &ettn);
    // The ETTN of another receipt the books keep under the document's issuer and number, or "".
    QString otherEttnOfNumber(const EsmmDocument &document);

private:
    Statement m_byEttn;
    Statement m_byNumber;
};

// What differs between two copies of one document ("aynı ETTN, farklı tarih, KDV"), or "" when
// they agree on number, issuer, payer, date and every amount.
QString EsmmDifferences(const EsmmDocument &kept, const EsmmDocument &found);
