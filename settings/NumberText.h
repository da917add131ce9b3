#ifndef ZEL_NUMBERTEXT_H
#define ZEL_NUMBERTEXT_H

#include <QString>

#include <vector>

namespace zel {

/// Reads a single-precision number. False for surrounding text and for "nan", which no setting can mean.
bool parseFloat(const QString& text, float& number);

/// Writes a number in general notation with six significant digits.
QString numberText(double number);

/// Writes simplification ratios, separated by "/".
QString ratiosText(const std::vector<float>& ratios);

} // namespace zel

#endif
