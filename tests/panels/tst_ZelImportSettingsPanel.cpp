#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelImportSettingsPanel.h"

#include <QRadioButton>

using namespace zel;

typedef ShownPage<ZelImportSettingsPanel> Page;

namespace {

/// A file in which nothing is in force.
const SettingsTexts Defaults = {
    {keys::TessellationQualitySet, "false"}, {keys::TessellationHighQuality, "true"},
    {keys::MaxFaceSagSet, "false"},          {keys::MaxFaceSag, "0.2"},
    {keys::MaxFaceLengthSet, "false"},       {keys::MaxFaceLength, "5"},
    {keys::MaxFaceAngleSet, "false"},        {keys::MaxFaceAngle, "30"},
};

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
    QString stored(const QString& key) { return m_application->getSettings().value(key).toString(); }

    std::unique_ptr<FakeApplication> m_application;

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        registerDefaults(Defaults);
        store(m_application->getSettings(), Defaults);
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        const auto written = [&](const char* set, const QString& isSet, const QString& key,
                                 const QString& text) {
            return writtenUntouched<ZelImportSettingsPanel>(*m_application, {{set, isSet}, {key, text}}, key);
        };
        for (const char* high : {"true", "false"})
            for (const char* set : {"true", "false"})
                QVERIFY(
                    written(keys::TessellationQualitySet, set, keys::TessellationHighQuality, high).isNull());
        for (const Limit& limit : Limits)
            for (const QString& text : limit.texts.keys()) {
                QVERIFY(written(limit.set, "false", limit.key, text).isNull());
                QCOMPARE(written(limit.set, "true", limit.key, text), limit.texts[text]);
            }
    }

    void eachLimitIsLeftOrSet()
    {
        for (const Limit& limit : Limits) {
            Page page(m_application.get(), m_application->getSettings());
            QSignalSpy toggles(page.find(limit.byDefault), SIGNAL(toggled(bool)));
            QVERIFY(!page.find(limit.spinBox)->isEnabled());
            page.click(limit.byValue);
            QVERIFY(page.find(limit.spinBox)->isEnabled() && page.canClickReset());
            QVERIFY(!page.find<QRadioButton>(limit.byDefault)->isChecked());
            QCOMPARE(page.changes.count(), 1);
            QVERIFY(page.page.hasModifications() && !page.page.applyModifications());
            QCOMPARE(stored(limit.set), QString("true"));
            QCOMPARE(stored(limit.key), Defaults[limit.key]);

            page.type(limit.spinBox, "42");
            QCOMPARE(page.changes.count(), 1);
            QVERIFY(page.page.hasModifications());
            page.page.initializeWidget();
            QVERIFY(!page.page.hasModifications() && toggles.isEmpty());

            page.click(limit.byDefault);
            QVERIFY(!page.find(limit.spinBox)->isEnabled() && !page.canClickReset());
            QVERIFY(!page.find<QRadioButton>(limit.byValue)->isChecked());
            page.page.applyModifications();
            QCOMPARE(stored(limit.set), QString("false"));
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
        page.click("lowQuality");
        QVERIFY(!page.page.applyModifications() && page.canClickReset());
        QCOMPARE(stored(keys::TessellationQualitySet), QString("true"));
        QCOMPARE(stored(keys::TessellationHighQuality), QString("false"));
    }

    void everyChoiceIsInReachOfTheKeyboard()
    {
        Page page(m_application.get(), m_application->getSettings());
        page.click("sag");
        page.find("resetButton")->setFocus();
        for (const char* name : {"defaultQuality", "highQuality", "lowQuality", "defaultSag", "sag",
                                 "faceSagSpin", "defaultLength", "length", "defaultAngle", "angle"}) {
            QTest::keyClick(page.page.focusWidget(), Qt::Key_Tab);
            QCOMPARE(page.page.focusWidget()->objectName(), QString(name));
        }
        QTest::keyClick(page.page.focusWidget(), Qt::Key_Space);
        QVERIFY(page.find("faceAngleSpin")->isEnabled());
    }
};

QTEST_MAIN(tst_ZelImportSettingsPanel)
#include "tst_ZelImportSettingsPanel.moc"
