#include "books/Parameters.h"

#include "books/AccessLayer.h"
#include "books/DataFiles.h"
#include "books/Message.h"
#include "money/AmountConventions.h"

namespace {

const QString keyIndex = QStringLiteral("kod");

QVariant genelValue(const QString &key, const QString &column)
{
    Recordset &genel = *dataFiles().genel;
    return RsSeek(genel, keyIndex, key) ? FieldRead(genel, column) : QVariant();
}

bool genelStore(const QString &key, const QString &column, const QVariant &value)
{
    Recordset &genel = *dataFiles().genel;
    if (RsSeek(genel, keyIndex, key)) {
        RsEdit(genel);
    } else {
        RsAddNew(genel);
        FieldWrite(genel, keyIndex, key);
    }
    FieldWrite(genel, column, value);
    return RsUpdate(genel);
}

void genelNumberStore(const QString &key, const QString &column, const QVariant &value)
{
    if (!genelStore(key, column, value))
        Message::exclamation(QStringLiteral("Genl Kaydı Yapılamadı."));
}

} // namespace

ParameterSet &parameters()
{
    static ParameterSet set;
    return set;
}

void ResetParameters()
{
    parameters() = ParameterSet();
    amountConventions() = AmountConventions();
}

void SetStartConventions()
{
    AmountConventions &conventions = amountConventions();
    conventions.tlonda = 2;
    conventions.decimalSeparator = u'.';
    conventions.thousandsSeparator = u',';
}

void LoadParameters()
{
    SetStartConventions();
    AmountConventions &conventions = amountConventions();
    ParameterSet &set = parameters();
    set.stopaj = GenelSingGet(QStringLiteral("stopaj"));
    set.fon = GenelSingGet(QStringLiteral("fon"));
    set.kdv = GenelSingGet(QStringLiteral("kdv"));
    conventions.tlonda = GenelIntegGet(QStringLiteral("tlonda"));
    set.serino = GenelCurrenGet(QStringLiteral("serino"));
    set.emanet = GenelCurrenGet(QStringLiteral("emanet"));
    set.not1 = GenelTxtGet(QStringLiteral("not1"));
    set.not2 = GenelTxtGet(QStringLiteral("not2"));
    set.not3 = GenelTxtGet(QStringLiteral("not3"));
    set.not4 = GenelTxtGet(QStringLiteral("not4"));
    set.unvan = GenelTxtGet(QStringLiteral("unvan"));
    set.vergino = GenelTxtGet(QStringLiteral("vergino"));
}

bool ParametersSaved()
{
    Recordset *genel = dataFiles().genel.get();
    return !genel || RsSeek(*genel, keyIndex, QStringLiteral("tlonda")); // no book, nothing unsaved
}

QString GenelTxtGet(const QString &key)
{
    return genelValue(key, QStringLiteral("txt")).toString();
}

float GenelSingGet(const QString &key)
{
    return genelValue(key, QStringLiteral("sing")).toFloat();
}

int GenelIntegGet(const QString &key)
{
    return genelValue(key, QStringLiteral("integ")).toInt();
}

Currency GenelCurrenGet(const QString &key)
{
    return genelValue(key, QStringLiteral("curren")).value<Currency>();
}

void GenelTxtSet(const QString &key, const QString &value)
{
    if (!genelStore(key, QStringLiteral("txt"), value))
        Message::exclamation(QStringLiteral("Genel Kaydı Yapılamadı."));
}

void GenelSingSet(const QString &key, float value)
{
    genelNumberStore(key, QStringLiteral("sing"), value);
}

void GenelIntegSet(const QString &key, int value)
{
    genelNumberStore(key, QStringLiteral("integ"), value);
}

void GenelCurrenSet(const QString &key, Currency value)
{
    genelNumberStore(key, QStringLiteral("curren"), QVariant::fromValue(value));
}
