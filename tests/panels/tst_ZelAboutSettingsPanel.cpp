#include "ShownPage.h"
#include "ZelAboutSettingsPanel.h"

#include <QDesktopServices>
#include <QLabel>
#include <QRegularExpression>
#include <QTableWidget>

typedef ShownPage<zel::ZelAboutSettingsPanel> Page;

class tst_ZelAboutSettingsPanel : public QObject
{
    Q_OBJECT

private:
    QList<QUrl> m_opened;
    FakeApplication m_application;

public Q_SLOTS:
    void open(const QUrl& url) { m_opened << url; }

private Q_SLOTS:
    void pluginsAreThoseOfTheFirstOpening()
    {
        FakePlugin first("Reader", "1.2"), second(QString("A long name ").repeated(9), "");
        m_application.plugins = {&first, &second};
        Page page(&m_application, m_application.getSettings());
        m_application.plugins.clear();
        page.page.initializeWidget();

        auto* table = page.find<QTableWidget>("tableWidget");
        QCOMPARE(table->rowCount(), 2);
        const QStringList texts = {"Reader", "v. 1.2", second.name, "v. "};
        for (int cell = 0; cell < texts.size(); ++cell) {
            QCOMPARE(table->item(cell / 2, cell % 2)->text(), texts[cell]);
            QCOMPARE(table->item(cell / 2, cell % 2)->toolTip(), texts[cell]);
        }
        // Nothing of the table is out of view.
        QVERIFY(table->isVisible() && table->rowHeight(1) > table->rowHeight(0));
        QVERIFY(table->viewport()->rect().contains(table->visualItemRect(table->item(1, 1))));
    }

    void linksOpenFromTheKeyboard()
    {
        QDesktopServices::setUrlHandler("https", this, "open");
        Page page(nullptr, m_application.getSettings());
        QVERIFY(!page.find("pluginsFrame")->isVisible());
        auto* components = page.find<QLabel>("libUseLabel_2");
        QList<QUrl> expected;
        auto link = QRegularExpression("href=\"([^\"]+)\"").globalMatch(components->text());
        components->setFocus(Qt::TabFocusReason);
        while (link.hasNext()) {
            expected << QUrl(link.next().captured(1));
            QTest::keyClick(components, Qt::Key_Tab);
            QTest::keyClick(components, Qt::Key_Return);
        }
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(expected.size(), 3);
        QCOMPARE(m_opened, expected);
    }
};

QTEST_MAIN(tst_ZelAboutSettingsPanel)
#include "tst_ZelAboutSettingsPanel.moc"
