#include "SettingsValues.h"

#include "IniCodec.h"
#include "ZelSettingsRegistry.h"

#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace zel {

QVariantMap valuesOf(const QSettings& settings)
{
    const QString general = "General/";
    QVariantMap values;
    for (const QString& key : settings.allKeys()) {
        const bool isGeneral = key.startsWith(general, Qt::CaseInsensitive);
        if (!key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//") &&
            !key.startsWith(QString::fromLatin1(Utf8Mark)) && settings.contains(key))
            values.insert(isGeneral ? general + key.mid(general.size()) : key, settings.value(key));
    }
    return values;
}

bool isSame(const QVariant& first, const QVariant& second)
{
    return first == second && first.toString() == second.toString();
}

bool isSame(const QVariantMap& first, const QVariantMap& second)
{
    auto other = second.constBegin();
    for (auto value = first.constBegin(); value != first.constEnd(); ++value, ++other)
        if (other == second.constEnd() || other.key() != value.key() || !isSame(*value, *other))
            return false;
    return other == second.constEnd();
}

void setValues(QSettings& settings, const QVariantMap& wanted)
{
    const QVariantMap present = valuesOf(settings);
    for (auto value = present.constBegin(); value != present.constEnd(); ++value)
        if (!wanted.contains(value.key()))
            settings.remove(value.key());
    const QVariantMap left = valuesOf(settings); // A group goes with the key of its name.
    for (auto value = wanted.constBegin(); value != wanted.constEnd(); ++value) {
        // A float equals its text, but QSettings would serialise it.
        const QVariant held = left.value(value.key());
        if (!left.contains(value.key()) || held.userType() != value->userType() || !isSame(held, *value))
            settings.setValue(value.key(), *value);
    }
}

QVariantMap common(const QVariantMap& first, const QVariantMap& second)
{
    QVariantMap same;
    for (auto value = first.constBegin(); value != first.constEnd(); ++value)
        if (second.contains(value.key()) && isSame(*value, second.value(value.key())))
            same.insert(value.key(), *value);
    return same;
}

QVariantMap united(QVariantMap values, const QVariantMap& others)
{
    for (auto value = others.constBegin(); value != others.constEnd(); ++value)
        if (!values.contains(value.key()))
            values.insert(value.key(), *value);
    return values;
}

bool lacksRegistered(const QVariantMap& values, const QVariantMap& former)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    return std::any_of(registered.begin(), registered.end(), [&](const auto& entry) {
        return former.contains(entry.first) && !values.contains(entry.first);
    });
}

} // namespace zel
