#include "QLabelEx.h"

void QLabelEx::mousePressEvent(QMouseEvent*)
{
    Q_EMIT click();
}
