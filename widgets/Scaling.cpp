#include "Scaling.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QRegularExpression>
#include <QVariant>
#include <QWidget>

namespace {
int scaled(int length, float ratio)
{
    const float limit = QWIDGETSIZE_MAX;
    return length < QWIDGETSIZE_MAX ? static_cast<int>(qMin(static_cast<float>(length) * ratio, limit)) : length;
}

QSize scaled(const QSize& size, float ratio)
{
    return {scaled(size.width(), ratio), scaled(size.height(), ratio)};
}

void scaleLayout(QLayout* layout, float ratio)
{
    layout->setContentsMargins(layout->contentsMargins() * ratio);
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        grid->setHorizontalSpacing(scaled(grid->horizontalSpacing(), ratio));
        grid->setVerticalSpacing(scaled(grid->verticalSpacing(), ratio));
    } else {
        layout->setSpacing(scaled(layout->spacing(), ratio));
    }
}

QString scaledStyleSheet(const QString& styleSheet, float ratio)
{
    static const QRegularExpression pixels(QStringLiteral("\\b(\\d+)px"));
    QString result;
    int end = 0;
    for (auto matches = pixels.globalMatch(styleSheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const int unscaled = match.captured(1).toInt();
        // Truncated like the boxes: a border rounded up would take room from the text. But no font has 0 pixels.
        const int length = qMax(qMin(unscaled, 1), scaled(unscaled, ratio));
        result += styleSheet.mid(end, match.capturedStart() - end) + QString::number(length) + QLatin1String("px");
        end = match.capturedEnd();
    }
    result += styleSheet.mid(end);
    // The arrows and indicators are coarse when they are enlarged, so the larger picture is taken. It is a border
    // image, which fills its place, as an image is never drawn larger than its picture.
    static const QRegularExpression picture(
        QStringLiteral("(::[^{}]*\\{[^{}]*) (?:border-)?image: url\\(([^()]*)\\.png\\)"));
    return result.replace(picture, QStringLiteral("\\1 border-image: url(\"\\2@2x.png\")"));
}

void replaceStyleSheet(QWidget* widget, const QString& styleSheet)
{
    // Until Qt has polished a widget, it goes on using the first style sheet that it has read for it.
    widget->ensurePolished();
    QVector<QPair<QWidget*, QFont>> fonts;
    const QList<QWidget*> descendants = widget->findChildren<QWidget*>();
    for (QWidget* descendant : descendants)
        fonts.append(qMakePair(descendant, descendant->font()));
    widget->setStyleSheet(styleSheet);
    if (styleSheet.contains(QLatin1String("font")))
        return;
    // Qt gives those that inherit their font the application's.
    for (const auto& font : qAsConst(fonts)) {
        if (font.first->font() != font.second)
            font.first->setFont(font.second);
    }
}

void scaleStyleSheet(QWidget* widget, float fullRatio)
{
    const char unscaledProperty[] = "unscaledStyleSheet";
    QString unscaled = widget->property(unscaledProperty).toString();
    if (unscaled.isNull()) {
        unscaled = widget->styleSheet();
        if (!unscaled.contains(QLatin1String("px")))
            return;
        widget->setProperty(unscaledProperty, unscaled);
    }
    replaceStyleSheet(widget, fullRatio == 1.0F ? unscaled : scaledStyleSheet(unscaled, fullRatio));
}
} // namespace

void scalePixels(QWidget* root, float ratio, float fullRatio)
{
    if (ratio == 1.0F)
        return;
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.append(root);
    for (QWidget* widget : qAsConst(widgets)) {
        const QSize maximum = widget->maximumSize();
        widget->setMinimumSize(scaled(widget->minimumSize(), ratio));
        widget->setMaximumSize(scaled(maximum, ratio));
        if (QLayout* layout = widget->layout())
            scaleLayout(layout, ratio);
        if (auto* button = qobject_cast<QAbstractButton*>(widget))
            button->setIconSize(scaled(button->iconSize(), ratio));
        scaleStyleSheet(widget, fullRatio);
    }
}
