#include "app/ProgramArt.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>

namespace {

// A receipt slip with a folded corner and ruled lines.
void drawReceipt(QPainter &painter, const QRectF &box)
{
    const qreal fold = box.width() * 0.28;
    QPolygonF slip;
    slip << box.topLeft() << QPointF(box.right() - fold, box.top()) << QPointF(box.right(), box.top() + fold)
         << box.bottomRight() << box.bottomLeft();
    painter.setPen(QPen(QColor(0x1f, 0x3a, 0x5f), box.width() / 24));
    painter.setBrush(Qt::white);
    painter.drawPolygon(slip);
    const qreal margin = box.width() * 0.18;
    for (int line = 1; line <= 4; ++line) {
        const qreal y = box.top() + box.height() * (0.2 + 0.16 * line);
        painter.drawLine(QPointF(box.left() + margin, y), QPointF(box.right() - margin, y));
    }
}

} // namespace

QPixmap SplashPicture()
{
    QPixmap picture(300, 170);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 170);
    sky.setColorAt(0, QColor(0x2b, 0x5d, 0x8c));
    sky.setColorAt(1, QColor(0x12, 0x2b, 0x45));
    painter.fillRect(picture.rect(), sky);
    drawReceipt(painter, QRectF(22, 30, 80, 110));

    painter.setPen(Qt::white);
    QFont title(QStringLiteral("DejaVu Sans"), 19, QFont::Bold);
    painter.setFont(title);
    painter.drawText(QRectF(116, 42, 180, 60), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
        QStringLiteral("Serbest Meslek"));
    QFont subtitle(QStringLiteral("DejaVu Sans"), 9);
    painter.setFont(subtitle);
    painter.setPen(QColor(0xd6, 0xe4, 0xf0));
    painter.drawText(QRectF(116, 104, 180, 40), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
        QStringLiteral("Makbuz, cari hesap ve defter kayıtları"));
    return picture;
}

QIcon ProgramIcon()
{
    QPixmap picture(64, 64);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0x2b, 0x5d, 0x8c));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(2, 2, 60, 60), 10, 10);
    drawReceipt(painter, QRectF(16, 9, 32, 46));
    return QIcon(picture);
}
