#ifndef ZEL_ZELSETTINGSFIELD_H
#define ZEL_ZELSETTINGSFIELD_H

#include <QString>
#include <QVariant>

#include <functional>

namespace zel {

/// How one kind of value travels between Settings.ini, the registered default texts and a page's model.
template <class T>
struct ZelFieldConversion
{
    /// A key that is absent is given as an invalid variant, and as a null default text.
    std::function<T(const QVariant& stored)> fromStored;
    /// Reads a registered default.
    std::function<T(const QString& defaultText)> fromDefault;
    /// Gives what is written.
    std::function<QVariant(const T& value)> toStored;
};

/// A value that is stored as it is.
template <class T>
ZelFieldConversion<T> plainConversion(std::function<T(const QString& defaultText)> fromDefault)
{
    return {[](const QVariant& stored) { return stored.value<T>(); }, fromDefault,
            [](const T& value) { return QVariant::fromValue(value); }};
}

/// Text as it is.
inline ZelFieldConversion<QString> textConversion()
{
    return plainConversion<QString>([](const QString& text) { return text; });
}

/// A whole number; 0 for a default that is none.
inline ZelFieldConversion<int> integerConversion()
{
    return plainConversion<int>([](const QString& text) { return text.toInt(); });
}

/// A whole number of 64 bits; 0 for a default that is none.
inline ZelFieldConversion<quint64> unsignedConversion()
{
    return plainConversion<quint64>([](const QString& text) { return text.toULongLong(); });
}

/// A number; 0 for a default that is none.
inline ZelFieldConversion<double> realConversion()
{
    return plainConversion<double>([](const QString& text) { return text.toDouble(); });
}

/// "true" or "false"; any default but "true" is false.
inline ZelFieldConversion<bool> flagConversion()
{
    return plainConversion<bool>([](const QString& text) { return text == QLatin1String("true"); });
}

/// A row of a page's table: the key, and how its value gets into the model and out of it.
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

    /// As in Settings.ini.
    QString key;
    /// Puts a stored value into a model.
    std::function<void(Model&, const QVariant& stored)> readStored;
    /// Puts a default into a model.
    std::function<void(Model&, const QString& defaultText)> readDefault;
    /// What is written for a model.
    std::function<QVariant(const Model&)> stored;
    /// Takes the value over from a model into another one.
    std::function<void(Model& to, const Model& from)> copy;
};

} // namespace zel

#endif
