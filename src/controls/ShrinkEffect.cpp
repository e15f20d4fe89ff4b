#include "controls/ShrinkEffect.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include "controls/OpenInMain.h"

namespace {

int divideHalfEven(int numerator, int denominator)
{
    int quotient = numerator / denominator;
    int remainder = numerator % denominator;
    if (remainder < 0) {
        remainder += denominator;
        --quotient;
    }
    if (2 * remainder > denominator || (2 * remainder == denominator && (quotient & 1)))
        ++quotient;
    return quotient;
}

// Draws the rectangles of one step over a window, then the next, and removes itself.
class ShrinkOverlay : public QWidget
{
public:
    ShrinkOverlay(QWidget *window, std::vector<ShrinkRect> steps)
        : QWidget(window)
        , m_steps(std::move(steps))
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_DeleteOnClose);
        setGeometry(window->rect());
        connect(&m_timer, &QTimer::timeout, this, &ShrinkOverlay::advance);
        m_timer.start(15);
        show();
        raise();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        if (m_step >= m_steps.size())
            return;
        const ShrinkRect &r = m_steps[m_step];
        const QRect inner
            = QRect(QPoint(r.left, r.top), QPoint(r.right - 1, r.bottom - 1)).translated(-mapToGlobal(QPoint(0, 0)));
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
        painter.drawRect(inner.normalized());
        painter.drawRect(inner.normalized().adjusted(-10, -10, 10, 10));
    }

private:
    void advance()
    {
        if (++m_step >= m_steps.size())
            close();
        else
            update();
    }

    std::vector<ShrinkRect> m_steps;
    size_t m_step = 0;
    QTimer m_timer;
};

QWidget *activeWindow()
{
    if (QMdiArea *area = MainArea())
        if (QMdiSubWindow *sub = area->activeSubWindow())
            return sub;
    return QApplication::activeWindow();
}

} // namespace

std::vector<ShrinkRect> ShrinkSteps(const ShrinkRect &window, bool towardCentre)
{
    ShrinkRect r = window;
    int stepLeft, stepTop, stepRight, stepBottom;
    if (towardCentre) {
        const int dx = divideHalfEven(r.right - r.left, 40);
        const int dy = divideHalfEven(r.bottom - r.top, 40);
        stepLeft = -dx;
        stepTop = -dy;
        stepRight = dx;
        stepBottom = dy;
    } else {
        stepLeft = divideHalfEven(r.left, 20);
        stepTop = divideHalfEven(r.top, 20);
        stepRight = divideHalfEven(r.right, 20);
        stepBottom = divideHalfEven(r.bottom, 20);
    }
    std::vector<ShrinkRect> steps;
    for (int i = 0; i < 20; ++i) {
        r.left -= stepLeft;
        r.top -= stepTop;
        r.right -= stepRight;
        r.bottom -= stepBottom;
        steps.push_back(r);
    }
    return steps;
}

void ShrinkEffect(bool towardCentre)
{
    QWidget *window = activeWindow();
    if (!window)
        return;
    const QRect frame(window->mapToGlobal(QPoint(0, 0)), window->size());
    const ShrinkRect rect { frame.left(), frame.top(), frame.left() + frame.width(), frame.top() + frame.height() };
    new ShrinkOverlay(window, ShrinkSteps(rect, towardCentre));
}
