#include "PictureLabel.h"

#include <QPainter>
#include <QPixmapCache>
#include <QVariant>

void PictureLabel::paintEvent(QPaintEvent* event)
{
    auto picture = property("pixmap").value<QPixmap>();
    if (picture.isNull()) {
        QLabel::paintEvent(event);
        return;
    }
    const QSize wanted = size() * devicePixelRatioF();
    if (picture.size() != wanted) {
        const QString key = QStringLiteral("PictureLabel %1 %2x%3")
                                .arg(QString::number(picture.cacheKey()))
                                .arg(wanted.width())
                                .arg(wanted.height());
        QPixmap scaled;
        if (!QPixmapCache::find(key, &scaled)) {
            scaled = picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QPixmapCache::insert(key, scaled);
        }
        picture = scaled;
    }
    QPainter(this).drawPixmap(rect(), picture);
}
