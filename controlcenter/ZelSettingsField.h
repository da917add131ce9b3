#ifndef ZEL_ZELSETTINGSFIELD_H
#define ZEL_ZELSETTINGSFIELD_H

#include <QString>
#include <QVariant>

#include <functional>

namespace zel {

/// Converts one kind of value between Settings.ini, the registered default text and the model of a page.
template <class T>
struct ZelFieldConversion
{
    /// Reads a stored value; an invalid variant for a missing key.
    std::function<T(const QVariant& stored)> fromStored;
    /// Reads a registered default; a null text for an unregistered key.
    std::function<T(const QString& defaultText)> fromDefault;
    /// Makes the variant to write.
    std::function<QVariant(const T& value)> toStored;
};

/// Stores a value without a conversion.
template <class T>
ZelFieldConversion<T> plainConversion(std::function<T(const QString& defaultText)> fromDefault)
{
    return {[](const QVariant& stored) { return stored.value<T>(); }, fromDefault,
            [](const T& value) { return QVariant::fromValue(value); }};
}

/// A text.
inline ZelFieldConversion<QString> textConversion()
{
    return plainConversion<QString>([](const QString& text) { return text; });
}

/// An integer; 0 for a default that is not one.
inline ZelFieldConversion<int> integerConversion()
{
    return plainConversion<int>([](const QString& text) { return text.toInt(); });
}

/// An unsigned 64-bit integer; 0 for a default that is not one.
inline ZelFieldConversion<quint64> unsignedConversion()
{
    return plainConversion<quint64>([](const QString& text) { return text.toULongLong(); });
}

/// A floating-point number; 0 for a default that is not one.
inline ZelFieldConversion<double> realConversion()
{
    return plainConversion<double>([](const QString& text) { return text.toDouble(); });
}

/// "true" or "false"; every default except "true" is false.
inline ZelFieldConversion<bool> flagConversion()
{
    return plainConversion<bool>([](const QString& text) { return text == QLatin1String("true"); });
}

/// A row in the table of a page: a key, and the functions that move its value into a model and out of it.
template <class Model>
struct ZelSettingsField
{
    /// A row for a key and the member of the model that holds its value.
    template <class T>
    ZelSettingsField(const char* settingsKey, T Model::*member, const ZelFieldConversion<T>& conversion)
        : key(QLatin1String(settingsKey))
        , readStored(
              [=](Model& model, const QVariant& value) { model.*member = conversion.fromStored(value); })
        , readDefault(
              [=](Model& model, const QString& text) { model.*member = conversion.fromDefault(text); })
        , stored([=](const Model& model) { return conversion.toStored(model.*member); })
        , copy([=](Model& to, const Model& from) { to.*member = from.*member; })
    {
    }

    /// The key, as in Settings.ini.
    QString key;
    /// Sets the member of a model from a stored value.
    std::function<void(Model&, const QVariant& stored)> readStored;
    /// Sets the member of a model from a default.
    std::function<void(Model&, const QString& defaultText)> readDefault;
    /// The variant to write for a model.
    std::function<QVariant(const Model&)> stored;
    /// Copies the value from one model to another.
    std::function<void(Model& to, const Model& from)> copy;
};

} // namespace zel

#endif
