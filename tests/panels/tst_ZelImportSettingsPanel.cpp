#include "FakeApplication.h"
#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelImportSettingsPanel.h"

#include <QAbstractButton>

using namespace zel;

typedef ShownPage<ZelImportSettingsPanel> Page;

Q_DECLARE_METATYPE(SettingsTexts)

namespace {

/// Everything that a file can hold, with nothing in force.
const SettingsTexts Nothing = {
    {keys::TessellationQualitySet, "false"}, {keys::TessellationHighQuality, "true"},
    {keys::MaxFaceSagSet, "false"},          {keys::MaxFaceSag, "0.2"},
    {keys::MaxFaceLengthSet, "false"},       {keys::MaxFaceLength, "5"},
    {keys::MaxFaceAngleSet, "false"},        {keys::MaxFaceAngle, "30"},
};

struct Limit
{
    const char *byDefault, *byValue, *spinBox, *set, *key;
} const Limits[] = {
    {"defaultSag", "sag", "faceSagSpin", keys::MaxFaceSagSet, keys::MaxFaceSag},
    {"defaultLength", "length", "faceLengthSpin", keys::MaxFaceLengthSet, keys::MaxFaceLength},
    {"defaultAngle", "angle", "faceAngleSpin", keys::MaxFaceAngleSet, keys::MaxFaceAngle},
};

} // namespace

class tst_ZelImportSettingsPanel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeApplication> m_application;
    QSettings* m_settings = nullptr;

    QString stored(const QString& key) { return m_settings->value(key).toString(); }

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        m_settings = &m_application->getSettings();
        registerDefaults(Nothing);
        store(*m_settings, Nothing);
    }

    void untouchedPageWritesOnlyWhatItCannotShow_data()
    {
        QTest::addColumn<SettingsTexts>("stored");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("rewritten"); // null: not written
        const auto row = [](const char* set, const char* key, const char* text, const char* rewritten) {
            QTest::addRow("%s=%s, %s", key, text, set)
                << SettingsTexts{{set, "true"}, {key, text}} << key << QString(rewritten);
        };
        const char* const none = "other/none";
        QTest::newRow("nothing in force") << SettingsTexts() << QString(none) << QString();
        for (const char* quality : {"true", "false"}) {
            row(keys::TessellationQualitySet, keys::TessellationHighQuality, quality, nullptr);
            row(none, keys::TessellationHighQuality, quality, nullptr);
        }
        for (const Limit& limit : {Limits[0], Limits[1]}) {
            row(limit.set, limit.key, "0", nullptr);
            row(limit.set, limit.key, "0.123", nullptr);
            row(limit.set, limit.key, "99.99", nullptr);
            row(limit.set, limit.key, "250", "99.99");
            row(limit.set, limit.key, "-1", "0");
            row(limit.set, limit.key, "1.23456", "1.235");
            row(limit.set, limit.key, "nan", "99.99");
            row(none, limit.key, "250", nullptr);
        }
        row(keys::MaxFaceAngleSet, keys::MaxFaceAngle, "0", nullptr);
        row(keys::MaxFaceAngleSet, keys::MaxFaceAngle, "359", nullptr);
        row(keys::MaxFaceAngleSet, keys::MaxFaceAngle, "360", "359");
        row(keys::MaxFaceAngleSet, keys::MaxFaceAngle, "-1", "0");
        row(none, keys::MaxFaceAngle, "360", nullptr);
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        QFETCH(SettingsTexts, stored);
        QFETCH(QString, key);
        QFETCH(QString, rewritten);
        store(*m_settings, stored);
        const QByteArray before = m_application->storedFile();
        Page page(m_application.get(), *m_settings);
        QCOMPARE(page.page.hasModifications(), !rewritten.isNull());
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(m_application->storedFile() != before, !rewritten.isNull());
        if (!rewritten.isNull())
            QCOMPARE(this->stored(key), rewritten);
        QVERIFY(!page.page.hasModifications() && page.changes.isEmpty());
    }

    void eachLimitIsLeftOrSet()
    {
        for (const Limit& limit : Limits) {
            Page page(m_application.get(), *m_settings);
            const QString value = stored(limit.key);
            QVERIFY(!page.find(limit.spinBox)->isEnabled());
            page.click(limit.byValue);
            QVERIFY(page.find(limit.spinBox)->isEnabled());
            QVERIFY(!page.find<QAbstractButton>(limit.byDefault)->isChecked());
            QCOMPARE(page.changes.count(), 1);
            QVERIFY(page.canClickReset() && page.page.hasModifications());
            QVERIFY(!page.page.applyModifications());
            QCOMPARE(stored(limit.set), QString("true"));
            QCOMPARE(stored(limit.key), value);

            page.type(limit.spinBox, "42");
            QCOMPARE(page.changes.count(), 1);
            QVERIFY(page.page.hasModifications());

            page.click(limit.byDefault);
            QVERIFY(!page.find(limit.spinBox)->isEnabled());
            QVERIFY(!page.find<QAbstractButton>(limit.byValue)->isChecked() && !page.canClickReset());
            QVERIFY(!page.page.applyModifications());
            QCOMPARE(stored(limit.set), QString("false"));
            QCOMPARE(stored(limit.key), QString("42"));
        }
    }

    void lowQualityLeavesTheResetButtonAlone()
    {
        Page page(m_application.get(), *m_settings);
        const auto isChecked = [&](const char* name) {
            return page.find<QAbstractButton>(name)->isChecked();
        };
        const struct
        {
            const char* button;
            bool canClickReset;
        } steps[] = {
            {"lowQuality", false}, {"highQuality", true}, {"lowQuality", true}, {"defaultQuality", false}};
        for (const auto& step : steps) {
            page.changes.clear();
            page.click(step.button);
            for (const char* name : {"defaultQuality", "highQuality", "lowQuality"})
                QCOMPARE(isChecked(name), QByteArray(name) == step.button);
            QCOMPARE(page.canClickReset(), step.canClickReset);
            QCOMPARE(page.changes.count(), 1);
        }
        page.click("lowQuality");
        QVERIFY(page.page.canResetContent() && !page.page.applyModifications() && page.canClickReset());
        QCOMPARE(stored(keys::TessellationQualitySet), QString("true"));
        QCOMPARE(stored(keys::TessellationHighQuality), QString("false"));
    }

    void everyChoiceIsInReachOfTheKeyboard()
    {
        Page page(m_application.get(), *m_settings);
        page.click("sag");
        const QList<QByteArray> order = {
            "defaultQuality", "highQuality",   "lowQuality", "defaultSag",   "sag",
            "faceSagSpin",    "defaultLength", "length",     "defaultAngle", "angle"};
        page.find("resetButton")->setFocus();
        for (const QByteArray& name : order) {
            QTest::keyClick(page.page.focusWidget(), Qt::Key_Tab);
            QCOMPARE(page.page.focusWidget()->objectName().toLatin1(), name);
        }
        QTest::keyClick(page.page.focusWidget(), Qt::Key_Space);
        QVERIFY(page.find("faceAngleSpin")->isEnabled());
    }
};

QTEST_MAIN(tst_ZelImportSettingsPanel)
#include "tst_ZelImportSettingsPanel.moc"
