#include "platform/kqDMManager.h"

#include <QtTest>

#include <cmath>

typedef std::vector<float> Ratios;
Q_DECLARE_METATYPE(Ratios)

class tst_kqDMManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void correctRatios_data();
    void correctRatios();
};

void tst_kqDMManager::correctRatios_data()
{
    QTest::addColumn<Ratios>("ratios");
    QTest::addColumn<Ratios>("expected");
    QTest::newRow("valid") << Ratios{1, 0.5f, 0.2f, 0.2f, 0.01f} << Ratios{1, 0.5f, 0.2f, 0.2f, 0.01f};
    QTest::newRow("none") << Ratios{} << Ratios{};
    QTest::newRow("first is not 1") << Ratios{0.5f, 0.25f} << Ratios{1, 0.25f};
    QTest::newRow("out of range") << Ratios{7, INFINITY, 0, -INFINITY} << Ratios{1, 1, 0.01f, 0.01f};
    QTest::newRow("rising") << Ratios{1, 0.2f, 0.9f, 0.1f} << Ratios{1, 0.2f, 0.2f, 0.1f};
    QTest::newRow("not numbers") << Ratios{NAN, 0.5f, NAN, 0.25f} << Ratios{1, 0.5f, 0.5f, 0.25f};
}

void tst_kqDMManager::correctRatios()
{
    QFETCH(Ratios, ratios);
    QFETCH(Ratios, expected);
    const bool isValid = ratios == expected;
    QCOMPARE(kqDMManager::correctRatios(ratios), !isValid);
    QCOMPARE(ratios, expected);
}

QTEST_APPLESS_MAIN(tst_kqDMManager)
#include "tst_kqDMManager.moc"
