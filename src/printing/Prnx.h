#pragma once

#include "printing/GraphicGrid.h"

#include <QByteArray>
#include <QFont>
#include <QString>
#include <QStringList>

#include <memory>

class GraphicDocument;

// "prnx": the print engine of every printout. A document is pages of lines of fields, each
// with a width in columns, an alignment and attributes; the engine draws them on the graphic
// printer (132 columns across the printable width) or sends them as dot-matrix text with ESC/P
// codes through the raw channel. The screens decide when a page is full.
class Prnx
{
public:
    enum Kind { Closed = 0, Graphic = 1, Raw = 2 };

    Prnx();
    ~Prnx();
    Prnx(const Prnx &) = delete;
    Prnx &operator=(const Prnx &) = delete;

    QFont Font() const { return m_font; }
    void setFont(const QFont &font) { m_font = font; }

    // wide is accepted and has no effect.
    bool OpenPrinter(int printertip, const QString &wPDocname = QString(), bool Condanced = false, int wide = 0);
    void ClosePrinter();
    int SatirSayisi() const { return m_lines; }
    int SayfaSayisi() const { return m_pages; }
    int YeniSayfa();
    void SayfaBitti(bool PageFeed = false);
    void Lprint(const QString &text, int en = 0, bool LineFeed = false, int algn = 0, bool koyu = false,
        bool italik = false, bool altcizgi = false, bool Ustcizgi = false);
    void LinePrint(int en = 0, bool koyu = false, bool LineFeed = false);
    void OpenSurekliBasim() { m_continuous = true; }
    void CloseSurekliBaski();
    bool SurekliBasim() const { return m_continuous; }
    void setSurekliBasim(bool on) { m_continuous = on; }

    int printertip() const { return m_kind; }
    // The field rectangles of graphic output (for the layout's checks).
    const GraphicGrid &grid() const { return m_grid; }

private:
    bool openGraphic(const QString &name);
    // A printout that was not made: what failed, where the pages were to go, and why.
    static void reportFailure(const QString &what, const QString &destination, const QString &why);
    void rawOutput(const QString &text, bool lineEnd, bool bold, bool italic, bool underline);
    void drawField(const QString &text, int en, int algn, bool bold, bool italic, bool underline, bool strikeOut);
    void advance(bool lineFeed);

    int m_kind = Closed;
    QFont m_font;
    QByteArray m_line; // raw text of the line not yet sent
    GraphicGrid m_grid;
    std::unique_ptr<GraphicDocument> m_document;
    int m_lines = 0;
    int m_pages = 0;
    bool m_continuous = false;
    QStringList m_overflows; // right-aligned texts that did not fit their fields
};
