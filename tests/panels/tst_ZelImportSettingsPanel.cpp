#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelImportSettingsPanel.h"

#include <QRadioButton>

using namespace zel;

typedef ShownPage<ZelImportSettingsPanel> Page;

namespace {

struct Limit
{
    const char *byDefault, *byValue, *spinBox, *set, *key;
    SettingsTexts texts; ///< What is stored, and what the page makes of it; null: the same.
};

const SettingsTexts Reals = {{"0", {}},   {"0.123", {}},        {"99.99", {}},   {"250", "99.99"},
                             {"-1", "0"}, {"1.23456", "1.235"}, {"nan", "99.99"}};
const SettingsTexts Angles = {{"0", {}}, {"359", {}}, {"360", "359"}, {"-1", "0"}};

const Limit Limits[] = {
    {"defaultSag", "sag", "faceSagSpin", keys::MaxFaceSagSet, keys::MaxFaceSag, Reals},
    {"defaultLength", "length", "faceLengthSpin", keys::MaxFaceLengthSet, keys::MaxFaceLength, Reals},
    {"defaultAngle", "angle", "faceAngleSpin", keys::MaxFaceAngleSet, keys::MaxFaceAngle, Angles},
};

} // namespace

class tst_ZelImportSettingsPanel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeApplication> m_application;

private Q_SLOTS:
    /// A file in which nothing is in force.
    void init()
    {
        SettingsTexts defaults = {{keys::TessellationQualitySet, "false"},
                                  {keys::TessellationHighQuality, "true"}};
        for (const Limit& limit : Limits)
            defaults.insert({{limit.set, "false"}, {limit.key, "5"}});
        m_application.reset(new FakeApplication);
        registerDefaults(defaults);
        store(m_application->getSettings(), defaults);
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        for (const Limit& limit : Limits)
            for (const QString& text : limit.texts.keys())
                for (const bool set : {false, true}) {
                    const QString written = writtenUntouched<ZelImportSettingsPanel>(
                        *m_application, {{limit.set, set ? "true" : "false"}, {limit.key, text}}, limit.key);
                    QCOMPARE(written, set ? limit.texts[text] : QString());
                }
    }

    void eachLimitIsLeftOrSet()
    {
        Page page(m_application.get(), m_application->getSettings());
        for (const Limit& limit : Limits) {
            page.changes.clear();
            QVERIFY(!page.find(limit.spinBox)->isEnabled());
            page.click(limit.byValue);
            QVERIFY(page.find(limit.spinBox)->isEnabled() && page.canClickReset());
            QVERIFY(!page.find<QRadioButton>(limit.byDefault)->isChecked());
            page.type(limit.spinBox, "42");
            QCOMPARE(page.changes.count(), 1);

            page.click(limit.byDefault);
            QVERIFY(!page.find(limit.spinBox)->isEnabled() && !page.canClickReset());
            QVERIFY(!page.find<QRadioButton>(limit.byValue)->isChecked());
        }
    }

    void lowQualityLeavesTheResetButtonAlone()
    {
        Page page(m_application.get(), m_application->getSettings());
        const std::pair<const char*, bool> clicks[] = {
            {"lowQuality", false}, {"highQuality", true}, {"lowQuality", true}, {"defaultQuality", false}};
        for (const auto& [button, canClickReset] : clicks) {
            page.changes.clear();
            page.click(button);
            for (const char* name : {"defaultQuality", "highQuality", "lowQuality"})
                QCOMPARE(page.find<QRadioButton>(name)->isChecked(), QByteArray(name) == button);
            QCOMPARE(page.canClickReset(), canClickReset);
            QCOMPARE(page.changes.count(), 1);
        }
    }
};

QTEST_MAIN(tst_ZelImportSettingsPanel)
#include "tst_ZelImportSettingsPanel.moc"
