#include "SettingsKeys.h"
#include "ShownPage.h"
#include "ZelSimplificationSettingsPanel.h"

#include <QDoubleSpinBox>

using namespace zel;

typedef ShownPage<ZelSimplificationSettingsPanel> Page;
typedef QList<int> Percentages;

class tst_ZelSimplificationSettingsPanel : public QObject
{
    Q_OBJECT

private:
    static Percentages shown(Page& page)
    {
        Percentages percentages;
        for (const char* name : {"ratio1", "ratio2", "ratio3", "ratio4", "ratio5"})
            percentages << page.find<QDoubleSpinBox>(name)->value();
        return percentages;
    }

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
        const SettingsTexts texts = {{"1/0.99/0.5/0.02/0.01", {}},
                                     {"1/0.1/0.9/0.1/0.9", {}},
                                     {"1//0.8/0.6/0.4/0.2/", {}},
                                     {"1/0.755/0.333/0.1/0.1", "1/0.76/0.33/0.1/0.1"},
                                     {"1/7/0.5/-1/0", "1/1/0.5/0.01/0.01"},
                                     {"1/x/nan/0.2/0.1", "1/0.01/0.01/0.2/0.1"},
                                     {"0.9/0.75/0.5/0.25/0.2", "1/0.75/0.5/0.25/0.2"},
                                     {"1/0.9/0.8/0.7", m_defaults},
                                     {"1/0.9/0.8/0.7/0.6/0.5", m_defaults}};
        for (const QString& text : texts.keys())
            QCOMPARE(written(text), texts[text]);
    }

    void everyPercentageKeepsItsValue()
    {
        for (int percentage = 1; percentage <= 100; ++percentage) {
            const QString equal = "1" + ("/" + QString::number(percentage / 100.0)).repeated(3);
            QCOMPARE(written(equal + "/0.0149"), equal + "/0.01");
            QVERIFY(written(stored()).isNull());
        }
    }

    void anEditBringsOnlyTheNeighboursIntoOrder_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Percentages>("percentages");
        const auto row = [](const char* name, const char* box, const char* typed, const Percentages& result) {
            QTest::newRow(name) << QString(box) << QString(typed) << result;
        };
        row("in order", "ratio3", "60", {100, 75, 60, 25, 10});
        row("raises the one above", "ratio3", "80", {100, 80, 80, 25, 10});
        row("lowers the one below", "ratio4", "5", {100, 75, 50, 5, 5});
        row("one step down", "ratio2", "10", {100, 10, 10, 25, 10});
        row("one step up", "ratio5", "90", {100, 75, 50, 90, 90});
    }

    void anEditBringsOnlyTheNeighboursIntoOrder()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(Percentages, percentages);
        Page page(m_application.get(), m_application->getSettings());
        QVERIFY(!page.canClickReset() && !page.page.hasModifications() && !page.find("ratio1")->isEnabled());
        page.find(box)->setFocus();
        page.changes.clear();
        page.type(box, typed);
        QCOMPARE(page.changes.count(), 1);
        QCOMPARE(shown(page), percentages);
        QVERIFY(page.canClickReset() && page.page.hasModifications());
        QSignalSpy values(page.find(box), SIGNAL(valueChanged(double)));
        QCOMPARE(page.reset(), 1);
        QCOMPARE(shown(page), (Percentages{100, 75, 50, 25, 10}));
        QVERIFY(!page.canClickReset() && values.isEmpty() && stored().isEmpty());
    }

    void applyHandsTheFractionsToTheSimplifier()
    {
        FakeManager manager;
        for (bool managed : {false, true}) {
            m_application->manager = managed ? &manager : nullptr;
            Page page(m_application.get(), m_application->getSettings());
            QVERIFY(!page.page.applyModifications() && manager.ratios.isEmpty());
            page.type("ratio2", managed ? "70" : "80");
            QVERIFY(manager.ratios.isEmpty() && !page.page.applyModifications());
            QCOMPARE(stored(), QString(managed ? "1/0.7/0.5/0.25/0.1" : "1/0.8/0.5/0.25/0.1"));
        }
        QCOMPARE(manager.ratios, (QList<std::vector<float>>{{1.f, .7f, .5f, .25f, .1f}}));
    }

    void withoutDefaultsThePageKeepsWhatItShows()
    {
        registerDefaults({});
        Page page(nullptr, m_application->getSettings());
        QCOMPARE(page.reset(), 1);
        QCOMPARE(shown(page), (Percentages{100, 75, 50, 25, 1}));
        QVERIFY(page.canClickReset() && !page.page.applyModifications());
        QCOMPARE(stored(), QString("1/0.75/0.5/0.25/0.01"));
    }
};

QTEST_MAIN(tst_ZelSimplificationSettingsPanel)
#include "tst_ZelSimplificationSettingsPanel.moc"
