#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelSimplificationSettingsPanel.h"

using namespace zel;

typedef ShownPage<ZelSimplificationSettingsPanel> Page;

class tst_ZelSimplificationSettingsPanel : public QObject
{
    Q_OBJECT

private:
    QString stored() { return m_application->getSettings().value(keys::SimplificationRatios).toString(); }

    QString written(const QString& text)
    {
        return writtenUntouched<ZelSimplificationSettingsPanel>(
            *m_application, {{keys::SimplificationRatios, text}}, keys::SimplificationRatios);
    }

    const QString m_defaults = "1/0.75/0.5/0.25/0.1";
    std::unique_ptr<FakeApplication> m_application;

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        registerDefaults({{keys::SimplificationRatios, m_defaults}});
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        const SettingsTexts texts = {{"1/0.1/0.9/0.1/0.9", {}},
                                     {"1//0.8/0.6/0.4/0.2/", {}},
                                     {"1/0.755/0.333/0.1/0.1", "1/0.76/0.33/0.1/0.1"},
                                     {"0.9/7/0.5/-1/0", "1/1/0.5/0.01/0.01"},
                                     {"1/x/nan/0.2/0.1", "1/0.01/0.01/0.2/0.1"},
                                     {"1/0.9/0.8/0.7", m_defaults},
                                     {"1/0.9/0.8/0.7/0.6/0.5", m_defaults}};
        for (const QString& text : texts.keys())
            QCOMPARE(written(text), texts[text]);
        for (int percentage = 1; percentage <= 100; ++percentage) {
            const QString equal = "1" + ("/" + QString::number(percentage / 100.0)).repeated(3);
            QCOMPARE(written(equal + "/0.0149"), equal + "/0.01");
        }
    }

    void applyHandsTheFractionsToTheSimplifier()
    {
        FakeManager manager;
        m_application->manager = &manager;
        Page page(m_application.get(), m_application->getSettings());
        QVERIFY(!page.canClickReset() && !page.page.applyModifications());
        page.type("ratio2", "70");
        QVERIFY(page.changes.count() == 1 && page.canClickReset());
        QVERIFY(manager.ratios.isEmpty() && !page.page.applyModifications());
        QCOMPARE(stored(), QString("1/0.7/0.5/0.25/0.1"));
        QCOMPARE(manager.ratios, (QList<std::vector<float>>{{1.f, .7f, .5f, .25f, .1f}}));
    }

    void withoutDefaultsThePageKeepsWhatItShows()
    {
        registerDefaults({});
        Page page(nullptr, m_application->getSettings());
        QCOMPARE(page.reset(), 1);
        QVERIFY(page.canClickReset() && !page.page.applyModifications());
        QCOMPARE(stored(), QString("1/0.75/0.5/0.25/0.01"));
    }
};

QTEST_MAIN(tst_ZelSimplificationSettingsPanel)
#include "tst_ZelSimplificationSettingsPanel.moc"
