#include "FakeApplication.h"
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

    std::unique_ptr<FakeApplication> m_application;

private Q_SLOTS:
    void init()
    {
        m_application.reset(new FakeApplication);
        registerDefaults({{keys::SimplificationRatios, "1/0.75/0.5/0.25/0.1"}});
    }

    void untouchedPageWritesOnlyWhatItCannotShow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Percentages>("percentages");
        QTest::addColumn<QString>("rewritten");
        const QString defaults = "1/0.75/0.5/0.25/0.1";
        const Percentages defaultPercentages{100, 75, 50, 25, 10};
        QTest::newRow("whole") << "1/0.99/0.5/0.02/0.01" << Percentages{100, 99, 50, 2, 1} << QString();
        QTest::newRow("unordered") << "1/0.1/0.9/0.1/0.9" << Percentages{100, 10, 90, 10, 90} << QString();
        QTest::newRow("empty parts") << "1//0.8/0.6/0.4/0.2/" << Percentages{100, 80, 60, 40, 20}
                                     << QString();
        QTest::newRow("rounded") << "1/0.755/0.333/0.1/0.1" << Percentages{100, 76, 33, 10, 10}
                                 << "1/0.76/0.33/0.1/0.1";
        QTest::newRow("clamped") << "1/7/0.5/-1/0" << Percentages{100, 100, 50, 1, 1} << "1/1/0.5/0.01/0.01";
        QTest::newRow("no number") << "1/x/nan/0.2/0.1" << Percentages{100, 1, 1, 20, 10}
                                   << "1/0.01/0.01/0.2/0.1";
        QTest::newRow("first") << "0.9/0.75/0.5/0.25/0.1" << defaultPercentages << defaults;
        QTest::newRow("four parts") << "1/0.75/0.5/0.25" << defaultPercentages << defaults;
        QTest::newRow("six parts") << "1/0.9/0.8/0.7/0.6/0.5" << defaultPercentages << defaults;
        QTest::newRow("empty") << "" << defaultPercentages << defaults;
        QTest::newRow("absent") << QString() << defaultPercentages << QString();
    }

    void untouchedPageWritesOnlyWhatItCannotShow()
    {
        QFETCH(QString, text);
        QFETCH(Percentages, percentages);
        QFETCH(QString, rewritten);
        if (!text.isNull())
            store(m_application->getSettings(), {{keys::SimplificationRatios, text}});
        Page page(m_application.get(), m_application->getSettings());
        QCOMPARE(shown(page), percentages);
        QCOMPARE(page.page.hasModifications(), !rewritten.isNull());
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(stored(), rewritten.isNull() ? text : rewritten);
        QVERIFY(!page.page.hasModifications() && page.changes.isEmpty());
    }

    void everyPercentageKeepsItsValue()
    {
        for (int percentage = 1; percentage <= 100; ++percentage) {
            const QString ratio = QString::number(percentage / 100.0);
            store(m_application->getSettings(),
                  {{keys::SimplificationRatios, "1" + ("/" + ratio).repeated(3) + "/0.0149"}});
            ZelSimplificationSettingsPanel page(nullptr, m_application->getSettings(), nullptr,
                                                Qt::WindowFlags());
            page.initializeWidget();
            QVERIFY(!page.applyModifications());
            QCOMPARE(stored(), "1" + ("/" + ratio).repeated(3) + "/0.01");
            QVERIFY(!page.hasModifications());
        }
    }

    void anEditBringsOnlyTheNeighboursIntoOrder_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<Percentages>("percentages");
        QTest::newRow("in order") << "ratio3"
                                  << "60" << Percentages{100, 75, 60, 25, 10};
        QTest::newRow("raises the one above") << "ratio3"
                                              << "80" << Percentages{100, 80, 80, 25, 10};
        QTest::newRow("lowers the one below") << "ratio4"
                                              << "5" << Percentages{100, 75, 50, 5, 5};
        QTest::newRow("one step down") << "ratio2"
                                       << "10" << Percentages{100, 10, 10, 25, 10};
        QTest::newRow("one step up") << "ratio5"
                                     << "90" << Percentages{100, 75, 50, 90, 90};
        QTest::newRow("highest") << "ratio2"
                                 << "100" << Percentages{100, 100, 50, 25, 10};
    }

    void anEditBringsOnlyTheNeighboursIntoOrder()
    {
        QFETCH(QString, box);
        QFETCH(QString, typed);
        QFETCH(Percentages, percentages);
        Page page(m_application.get(), m_application->getSettings());
        page.find(box)->setFocus();
        page.changes.clear();
        page.type(box, typed);
        QCOMPARE(shown(page), percentages);
        QCOMPARE(page.changes.count(), 1);
        QVERIFY(page.canClickReset() && page.page.hasModifications() && !page.find("ratio1")->isEnabled());
        page.find("resetButton")->setFocus();
        page.changes.clear();
        QTest::keyClick(page.find("resetButton"), Qt::Key_Space);
        QCOMPARE(page.changes.count(), 1);
        QCOMPARE(shown(page), (Percentages{100, 75, 50, 25, 10}));
        QVERIFY(!page.canClickReset() && stored().isEmpty());
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
        QCOMPARE(shown(page), (Percentages{100, 75, 50, 25, 1}));
        QVERIFY(page.canClickReset() && page.page.hasModifications());
        page.click("resetButton");
        QCOMPARE(shown(page), (Percentages{100, 75, 50, 25, 1}));
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(stored(), QString("1/0.75/0.5/0.25/0.01"));
    }
};

QTEST_MAIN(tst_ZelSimplificationSettingsPanel)
#include "tst_ZelSimplificationSettingsPanel.moc"
