#include "NumberText.h"

#include <QStringList>

#include <cmath>

namespace zel {

bool parseFloat(const QString& text, float& number)
{
    bool parsed = false;
    number = text.toFloat(&parsed);
    return parsed && !std::isnan(number);
}

QString numberText(double number)
{
    return QString::number(number, 'g', 6);
}

QString ratiosText(const std::vector<float>& ratios)
{
    QStringList parts;
    for (const float ratio : ratios)
        parts << numberText(ratio);
    return parts.join("/");
}

} // namespace zel
