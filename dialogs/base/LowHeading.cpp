#include "LowHeading.h"

LowHeading::LowHeading(QWidget* parent) : QLabel(parent)
{
    setContentsMargins(0, 0, 0, 2);
}
