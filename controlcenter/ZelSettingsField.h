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
    std::function<T(const QString& defaultText)> fromDefault;
    std::function<QVariant(const T& value)> toStored;
};

/// A value that is stored as it is.
template <class T>
ZelFieldConversion<T> plainConversion(std::function<T(const QString& defaultText)> fromDefault)
{
    return {[](const QVariant& stored) { return stored.value<T>(); }, fromDefault,
            [](const T& value) { return QVariant::fromValue(value); }};
}

inline ZelFieldConversion<QString> textConversion()
{
    return plainConversion<QString>([](const QString& text) { return text; });
}

inline ZelFieldConversion<int> integerConversion()
{
    return plainConversion<int>([](const QString& text) { return text.toInt(); });
}

inline ZelFieldConversion<quint64> unsignedConversion()
{
    return plainConversion<quint64>([](const QString& text) { return text.toULongLong(); });
}

inline ZelFieldConversion<double> realConversion()
{
    return plainConversion<double>([](const QString& text) { return text.toDouble(); });
}

inline ZelFieldConversion<bool> flagConversion()
{
    return plainConversion<bool>([](const QString& text) { return text == "true"; });
}

/// A row of a page's table: the key, and how its value gets into the model and out of it.
template <class Model>
struct ZelSettingsField
{
    template <class T>
    ZelSettingsField(const char* settingsKey, T Model::*member, const ZelFieldConversion<T>& conversion)
        : key(settingsKey)
        , readStored(
              [=](Model& model, const QVariant& stored) { model.*member = conversion.fromStored(stored); })
        , readDefault(
              [=](Model& model, const QString& text) { model.*member = conversion.fromDefault(text); })
        , stored([=](const Model& model) { return conversion.toStored(model.*member); })
        , copy([=](Model& to, const Model& from) { to.*member = from.*member; })
    {
    }

    QString key;
    std::function<void(Model&, const QVariant& stored)> readStored;
    std::function<void(Model&, const QString& defaultText)> readDefault;
    std::function<QVariant(const Model&)> stored;
    std::function<void(Model& to, const Model& from)> copy;
};

} // namespace zel

#endif
