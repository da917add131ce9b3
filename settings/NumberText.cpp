#include "NumberText.h"

#include <QStringList>

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

QString zel::ratiosText(const std::vector<float>& ratios)
{
    QStringList parts;
    for (const float ratio : ratios)
        parts << numberText(static_cast<double>(ratio));
    return parts.join("/");
}
