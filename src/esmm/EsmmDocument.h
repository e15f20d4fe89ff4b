#pragma once

#include "money/Currency.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

// What the books need of one e-SMM, the self-employment receipt issued on the Revenue
// Administration's portal (root eArsivVeri in the namespace http://earsiv.efatura.gov.tr).
struct EsmmDocument
{
    QString makbuzNo;
    QString ettn; // the document's identity
    QString issuer; // the mukellef's vkn or tckn
    QDate date; // belgeTarihi
    QString dateText; // belgeTarihi as written
    QString currency; // paraBirimi, "TRY" when absent
    QString payerId; // the alici's vkn or tckn
    QString payerName; // its unvan or adiSoyadi
    QString payerTaxOffice; // vDaire
    QString firstLine; // the first malHizmet's ad
    bool vatAccrualOnly = false; // kdvTahakkukIcin: issued for the VAT alone, the fee not yet collected

    Currency gross; // the lines' burutUcret, or the taxes' matrah where the lines have none
    Currency stopaj; // tax 0003
    Currency kdv; // tax 0015
    Currency withheld; // the VAT withheld by the payer (tevkifatTutari)
    int withheldPercent = 0; // tevkifatOrani
    QString withheldCode; // tevkifatKodu
    QStringList otherTaxCodes; // codes that are neither 0003 nor 0015

    // The taxes of the lines, where the document states its own as well: both must agree.
    struct Taxes
    {
        Currency stopaj, kdv, withheld;
    };
    std::optional<Taxes> lineTaxes;

    // The totals as the document states them; absent ones are not checked.
    std::optional<Currency> statedTotal; // toplamTutar
    std::optional<Currency> statedPayable; // odenecekTutar
    std::optional<Currency> statedTaxes; // vergilerToplami
};

// The first day an e-SMM could be issued: the day the communiqué that brought them in (VUK
// General Communiqué no. 509) was published.
QDate FirstEsmmDay();

// Reads one document; false with the reason when the text is not a readable e-SMM. A document
// type declaration is refused outright: no entity is ever expanded.
bool ReadEsmmDocument(const QByteArray &xml, EsmmDocument *document, QString *why);
