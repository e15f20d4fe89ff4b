#include "printing/GraphicGrid.h"

#include <QLine>

#include <cmath>

GraphicGrid::GraphicGrid(double printableWidth, int lineHeight)
    : m_printableWidth(printableWidth)
    , m_lineHeight(lineHeight)
{
    topOfPage();
}

void GraphicGrid::topOfPage()
{
    m_left = 0;
    m_top = 0;
    m_right = 0;
    m_bottom = m_lineHeight;
}

QRect GraphicGrid::placeField(int en, int textWidth)
{
    m_right = en < 1 ? m_left + textWidth : int(std::lround(m_left + columnWidth() * en));
    const QRect field(QPoint(m_left, m_top), QPoint(m_right - 1, m_bottom - 1));
    m_left = m_right;
    return field;
}

QLine GraphicGrid::placeRule(int en)
{
    m_right = int(std::lround(m_left + columnWidth() * en));
    const int middle = int(std::lround(m_top + (m_bottom - m_top) / 2.0));
    const QLine rule(m_left, middle, m_right, middle);
    m_left = m_right;
    return rule;
}

void GraphicGrid::lineFeed()
{
    m_left = 0;
    m_top = m_bottom;
    m_bottom += m_lineHeight;
}
