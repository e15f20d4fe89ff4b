#pragma once

#include <QLine>
#include <QRect>

// Where the fields of graphic output go, in device pixels: a line is lineHeight high and the
// printable width holds 132 columns.
class GraphicGrid
{
public:
    GraphicGrid() = default;
    GraphicGrid(double printableWidth, int lineHeight);

    double columnWidth() const { return m_printableWidth / 132.0; }
    // The page's first line, at the left edge.
    void topOfPage();
    // The next field: en columns wide, or textWidth pixels when en is below 1. The field
    // after it starts at its right edge.
    QRect placeField(int en, int textWidth);
    // A rule of en columns at the middle of the line: its left, right and height.
    QLine placeRule(int en);
    // The next field starts at the left edge of the next line.
    void lineFeed();
    QRect current() const { return QRect(QPoint(m_left, m_top), QPoint(m_right - 1, m_bottom - 1)); }

private:
    double m_printableWidth = 0;
    int m_lineHeight = 0;
    int m_left = 0;
    int m_top = 0;
    int m_right = 0;
    int m_bottom = 0;
};
