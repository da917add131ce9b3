// Fuzzes the parsers of ratios, scene units and settings files with any texts and numbers.

#include "Check.h"
#include "SettingsDamage.h"
#include "SettingsNumbers.h"
#include "ZelSettingsValidators.h"

#include "platform/kqDMManager.h"

#include <QStringList>

#include <cstring>
#include <vector>

using namespace zel;

namespace {

const char* const GoodRatios = "1/0.75/0.5/0.25/0.1";

bool isCorrect(const std::vector<float>& ratios)
{
    float previous = 1;
    for (const float ratio : ratios) {
        if (!(ratio >= 0.01F && ratio <= previous))
            return false;
        previous = ratio;
    }
    return ratios.empty() || ratios.front() == 1;
}

void checkRatios(const QString& defaultValue, const QString& text)
{
    QString value = text, error;
    const bool accepted = ZelSettingsValidators::ensureSimplificationRatios("", defaultValue, value, error);
    check(error.isEmpty(), "no error text is set", error);
    if (!accepted) {
        check(defaultValue != GoodRatios, "a good default is always enough", text);
        return;
    }
    std::vector<float> ratios;
    for (const QString& part : value.split('/')) {
        float ratio = 0;
        check(parseFloat(part, ratio), "every ratio is a number", value);
        ratios.push_back(ratio);
    }
    check(ratios.size() == 5 && isCorrect(ratios), "there are five ratios in descending order", text, value);
    const QString first = value;
    check(ZelSettingsValidators::ensureSimplificationRatios("", defaultValue, value, error) && value == first,
          "corrected ratios stay", first, value);
}

void checkUnit(const QString& text)
{
    QString value = text, error;
    check(ZelSettingsValidators::ensureSceneUnit("", "default", value, error), "a unit is never refused",
          text);
    const QStringList units = {"default", "0.001", "0.01", "0.1", "1", "10", "100", "1000"};
    check(units.contains(value), "a unit is in its plain form", text, value);
    const QString first = value;
    ZelSettingsValidators::ensureSceneUnit("", "default", value, error);
    check(value == first, "a unit stays", first, value);
}

void checkFile(const QByteArray& text)
{
    droppedComment(text);
    if (settingsDamage(text).isEmpty())
        check(settingsDamage(text + "\n; comment\n").isEmpty(), "a comment at the end is no damage", text);
}

void checkNumbers(std::vector<float> numbers)
{
    for (const float number : numbers) {
        const int index = sceneUnitIndex(number);
        check(index >= -1 && index < SceneUnitCount, "the index is that of a unit",
              QString::number(static_cast<double>(number)));
    }
    const std::vector<float> original = numbers;
    const bool changed = kqDMManager::correctRatios(numbers);
    check(numbers.size() == original.size() && isCorrect(numbers), "ratios are corrected");
    check(changed == (numbers != original), "the answer tells whether anything changed");
    check(!kqDMManager::correctRatios(numbers), "corrected ratios need no correction");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // The input is a text, optionally followed by a zero byte and a default.
    const QList<QByteArray> texts =
        QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\0');
    const QString text = QString::fromUtf8(texts[0]);
    checkRatios(GoodRatios, text);
    if (texts.size() > 1)
        checkRatios(QString::fromUtf8(texts[1]), text);
    checkUnit(text);

    checkFile(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));

    std::vector<float> numbers(size / sizeof(float));
    if (!numbers.empty())
        std::memcpy(numbers.data(), data, numbers.size() * sizeof(float));
    checkNumbers(numbers);
    return 0;
}
