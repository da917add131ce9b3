#include "NumberText.h"

#include <cmath>

bool zel::parseFloat(const QString& text, float& number)
{
    bool parsed = false;
    number = text.toFloat(&parsed);
    return parsed && !std::isnan(number);
}

QString zel::numberText(double number)
{
    return QString::number(number, 'g', 6);
}
