#include "SettingsKeys.h"
#include "ShownPage.h"
#include "Version.h"
#include "ZelAboutSettingsPanel.h"
#include "ZelGeneralSettingsPanel.h"
#include "ZelImportSettingsPanel.h"
#include "ZelSimplificationSettingsPanel.h"
#include "base/AccessibleCompat.h"
#include "base/QtCompat.h"

using namespace zel;

using About = ShownPage<ZelAboutSettingsPanel>;
using General = ShownPage<ZelGeneralSettingsPanel>;
using Import = ShownPage<ZelImportSettingsPanel>;
using Simplification = ShownPage<ZelSimplificationSettingsPanel>;

namespace {

// What is stored, and what a page makes of it; null: the same.
const SettingsTexts Reals = {{"0", {}},   {"0.123", {}},        {"99.99", {}},   {"250", "99.99"},
                             {"-1", "0"}, {"1.23456", "1.235"}, {"nan", "99.99"}};
const SettingsTexts Angles = {{"0", {}}, {"359", {}}, {"360", "359"}, {"-1", "0"}};
const SettingsTexts Sizes = {{"10", {}}, {"4096", {}}, {"-1", "10"}, {"4097", "4096"}, {"many", "10"}};
const char* const DefaultRatios = "1/0.75/0.5/0.25/0.1";
const SettingsTexts Ratios = {{"1/0.1/0.9/0.1/0.9", {}},
                              {"1//0.8/0.6/0.4/0.2/", {}},
                              {"1/0.755/0.333/0.1/0.1", "1/0.76/0.33/0.1/0.1"},
                              {"0.9/7/0.5/-1/0", "1/1/0.5/0.01/0.01"},
                              {"1/x/nan/0.2/0.1", "1/0.01/0.01/0.2/0.1"},
                              {"1/0.9/0.8/0.7", DefaultRatios},
                              {"1/0.9/0.8/0.7/0.6/0.5", DefaultRatios}};

const struct
{
    const char *byDefault, *byValue, *spinBox, *set, *key;
    SettingsTexts texts;
} Limits[] = {
    {"defaultSag", "sag", "faceSagSpin", keys::MaxFaceSagSet, keys::MaxFaceSag, Reals},
    {"defaultLength", "length", "faceLengthSpin", keys::MaxFaceLengthSet, keys::MaxFaceLength, Reals},
    {"defaultAngle", "angle", "faceAngleSpin", keys::MaxFaceAngleSet, keys::MaxFaceAngle, Angles},
};

} // namespace

/// The pages, but for the display's.
class tst_Pages : public QObject
{
    Q_OBJECT

private:
    template <class Page>
    void checkUntouched(const char* key, const SettingsTexts& texts)
    {
        for (const auto& [stored, written] : texts)
            QCOMPARE(writtenUntouched<Page>(*m_application, {{key, stored}}, key), written);
    }

    /// Answers the folder dialog of a button; an empty folder cancels it.
    static void choose(General& page, const char* button, const QString& folder)
    {
        const QString former = page.find(button)->toolTip();
        const bool isCache = button == std::string("databaseButton");
        const Later answer(10, [folder, former, isCache] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(former.isEmpty() || dialog->directory() == QDir(former)); // It begins where it is.
            QVERIFY(dialog->windowTitle().contains("cache") == isCache &&
                    dialog->testOption(QFileDialog::ShowDirsOnly));
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(folder);
            QTest::keyClick(dialog, folder.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
        });
        page.click(button);
    }

    QString folder(const QString& name)
    {
        QDir(m_application->getApplicationFolder()).mkpath(name);
        return m_application->getApplicationFolder() + "/" + name;
    }

    /// As another program stores, of which the page is told.
    template <class Page>
    void storeBeside(Page& page, const SettingsTexts& texts)
    {
        store(settings(), texts);
        page.page.takeStored();
    }

    /// The pending edits, a line each.
    template <class Page>
    static QString editsOf(Page& page)
    {
        QString lines;
        for (const auto& [name, stored, shown, field, putBack] : page.page.pendingEdits())
            lines += name + ", " + stored + ", " + shown + ", " + field->objectName() + '\n';
        return lines;
    }

    QSettings& settings() { return m_application->getSettings(); }
    QString stored(const char* key) { return settings().value(key).toString(); }

    QStringList m_openedHosts;
    std::unique_ptr<FakeApplication> m_application;

public Q_SLOTS:
    void open(const QUrl& url) { m_openedHosts << url.host(); }

private Q_SLOTS:
    /// A file in which no limit is in force.
    void init()
    {
        SettingsTexts defaults = {{keys::TessellationQualitySet, "false"},
                                  {keys::TessellationHighQuality, "true"},
                                  {keys::SimplificationRatios, DefaultRatios}};
        for (const auto& limit : Limits)
            defaults.insert({{limit.set, "false"}, {limit.key, "5"}});
        registerDefaults(defaults);
        useOwnDialogs(); // To find the fields in.
        m_application.reset(new FakeApplication);
        store(settings(), defaults);
        store(settings(), {{keys::CacheDirectory, folder("cache")}, {keys::CacheSize, "500"}});
    }

    void untouchedPagesWriteOnlyWhatTheyCannotShow()
    {
        checkUntouched<ZelGeneralSettingsPanel>(keys::CacheSize, Sizes);
        checkUntouched<ZelSimplificationSettingsPanel>(keys::SimplificationRatios, Ratios);
        for (int percentage = 1; percentage <= 100; ++percentage) {
            const QString equal = "1" + ("/" + QString::number(percentage / 100.0)).repeated(3);
            checkUntouched<ZelSimplificationSettingsPanel>(keys::SimplificationRatios,
                                                           {{equal + "/0.0149", equal + "/0.01"}});
        }
        for (const auto& limit : Limits) {
            checkUntouched<ZelImportSettingsPanel>(limit.key,
                                                   {{limit.texts.rbegin()->first, {}}}); // Not in force.
            store(settings(), {{limit.set, "true"}});
            checkUntouched<ZelImportSettingsPanel>(limit.key, limit.texts);
        }
    }

    void foldersAndCacheSizeReachTheApplication()
    {
        General page(m_application.get(), settings());
        choose(page, "databaseButton", QString());
        QVERIFY(page.changes.isEmpty() && !page.page.hasModifications());
        page.page.resize(600, page.page.height());
        const QString longName = QString("long/").repeated(30) + "end";
        // Only another cache folder than the running one needs a restart, and that once.
        for (const auto& [name, restarts] : {std::make_pair(QString("other"), true),
                                             {longName, true},
                                             {"cache", false},
                                             {"cache", false},
                                             {"other", true},
                                             {"other", false}}) {
            const QString chosen = folder(name);
            choose(page, "databaseButton", chosen);
            QCOMPARE(page.page.applyModifications(), restarts);
            QCOMPARE(stored(keys::CacheDirectory), chosen);
            const auto* button = page.find<QPushButton>("databaseButton");
            for (const int width : {435, 600}) {
                page.page.resize(width, page.page.height());
                const QString shown = button->text();
                QVERIFY(shown.startsWith(QChar(0x2026)) || !chosen.contains("long"));
                QVERIFY(button->fontMetrics().size(0, shown).width() <= button->width() - 12);
                QCOMPARE(shown.section('/', -1), chosen.section('/', -1));
            }
        }
        QCOMPARE(page.changes.count(), 6);

        auto* const shotsButton = page.find<QPushButton>("screenshotFolderButton");
        QVERIFY(shotsButton->accessibleDescription().startsWith("No folder is set. Where"));
        QVERIFY(!shotsButton->icon().pixmap(16).isNull() &&
                page.find<QPushButton>("databaseButton")->icon().isNull());
        const QString shots = folder("shots of R&D");
        m_application->manager.cacheSizes.clear();
        m_application->imageFolders.clear();
        QTest::keyClick(page.find("databaseSpinBox"), Qt::Key_Delete, Qt::AltModifier);
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 500); // There is no default.
        page.type("databaseSpinBox", "2048");
        choose(page, "screenshotFolderButton", shots);
        QVERIFY(m_application->manager.cacheSizes.isEmpty() && m_application->imageFolders.isEmpty());
        QVERIFY(!page.page.applyModifications());
        QCOMPARE(m_application->manager.cacheSizes, QList<unsigned int>{2048});
        QCOMPARE(m_application->imageFolders, QList<QString>({shots, shots}));
        QVERIFY(shotsButton->shortcut().isEmpty() && shotsButton->icon().isNull());
        QVERIFY(shotsButton->accessibleDescription().startsWith(shots + " Where"));
        shotsButton->setToolTip("&"); // Would be left out if it announced a shortcut.
        page.page.resize(435, page.page.height());
        const QImage painted = pictureOf(shotsButton);
        shotsButton->setText(QString());
        QVERIFY(pictureOf(shotsButton) != painted);

        General alone(nullptr, settings());
        QTest::keyClick(alone.find("databaseSpinBox"), Qt::Key_F1, Qt::ShiftModifier); // Where it is.
        QVERIFY(QApplication::activePopupWidget() && QApplication::activePopupWidget()->isVisible());
        QWhatsThis::hideText();
        alone.type("databaseSpinBox", "99");
        QVERIFY(!alone.page.applyModifications() && stored(keys::CacheSize) == "99" && alone.reset() == 1);
    }

    void editsAreMergedWithWhatOthersStore()
    {
        General page(m_application.get(), settings());
        page.type("databaseSpinBox", "512");
        storeBeside(page, {{keys::CacheSize, "700"}, {keys::ScreenshotFolder, "/others"}});
        QCOMPARE(page.find<QPushButton>("screenshotFolderButton")->text(), QString("/others"));
        storeBeside(page, {{keys::ScreenshotFolder, ""}});
        QVERIFY(page.find("screenshotFolderButton")->toolTip().isEmpty());
        QCOMPARE(editsOf(page), QString("Cache size, 700 Mo, 512 Mo, databaseSpinBox\n"));
        const auto makeAgain = page.page.discardEdits();
        QVERIFY(!page.page.hasModifications() && page.page.pendingEdits().empty() &&
                !page.page.discardEdits());
        page.page.pushStored(); // Nothing, because the application has it.
        page.changes.clear();
        makeAgain();
        QCOMPARE(page.changes.count(), 1);
        store(settings(), {{keys::ScreenshotFolder, "/newer"}});
        page.page.applyModifications();
        QCOMPARE(stored(keys::CacheSize) + stored(keys::ScreenshotFolder), QString("512/newer"));
        storeBeside(page, {{keys::CacheSize, "5"}}); // As after a write that failed.
        page.page.pushStored();
        QCOMPARE(m_application->manager.cacheSizes, QList<unsigned int>({512, 5}));
        page.page.pendingEdits()[0].putBack(); // The field cannot show it, but that is no edit.
        QCOMPARE(editsOf(page), QString("Cache size, 5, 10 Mo, databaseSpinBox\n"));
        QVERIFY(!page.page.pendingEdits()[0].putBack);
        storeBeside(page, {{keys::CacheSize, "512"}}); // By another program: what was not written here.
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 512);

        // After a write that succeeded the edit is no longer one.
        page.type("databaseSpinBox", "640");
        page.page.applyModifications();
        page.page.takeStored();
        storeBeside(page, {{keys::CacheSize, "800"}});
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 800);
        page.type("databaseSpinBox", "600");
        makeAgain(); // Not over a newer edit.
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 600);
        storeBeside(page, {{keys::CacheSize, "900"}});
        page.type("databaseSpinBox", "800"); // What was stored before is an edit now.
        storeBeside(page, {{keys::CacheSize, "300"}});
        QCOMPARE(page.find<QSpinBox>("databaseSpinBox")->value(), 800);

        Import import(nullptr, settings());
        storeBeside(import, {{keys::MaxFaceAngleSet, "true"}});
        QVERIFY(import.find("faceAngleSpin")->isEnabled() && import.canClickReset());
        import.click("sag"); // The choice is edited, but not the value.
        storeBeside(import, {{keys::MaxFaceSag, "3"}});
        QCOMPARE(import.find<QDoubleSpinBox>("faceSagSpin")->value(), 3.0);
        import.click("lowQuality");
        import.type("faceSagSpin", "4"); // The limit is one edit.
        import.click("length");
        import.type("faceLengthSpin", "42");
        import.click("defaultLength"); // Without effect, but stored, too.
        import.type("faceAngleSpin", "30");
        QCOMPARE(editsOf(import),
                 QString::fromUtf8("Tessellation Quality, chosen by Torvane, Low Quality, lowQuality\n"
                                   "Max Face Sag, chosen by Torvane, 4.000, sag\n"
                                   "Max Face Length, 5.000, 42.000, defaultLength\n"
                                   "Max Face Angle, 5 \302\260, 30 \302\260, faceAngleSpin\n"));
        import.page.pendingEdits()[1].putBack();
        QCOMPARE(import.find<QDoubleSpinBox>("faceSagSpin")->value(), 3.0);
    }

    void limitsAndQualityWorkTheResetButton()
    {
        Import page(m_application.get(), settings());
        for (const auto& limit : Limits) {
            page.click(limit.byValue);
            QVERIFY(page.find(limit.spinBox)->isEnabled() && page.canClickReset());
            const bool whole = page.find<QSpinBox>(limit.spinBox);
            QCOMPARE(page.type(limit.spinBox, whole ? "400" : "250.5"),
                     QString::fromUtf8(whole ? "359 \302\260" : "99.990"));
            page.type(limit.spinBox, "42"); // Numbers are not announced.
            page.click(limit.byDefault);
            QVERIFY(!page.find(limit.spinBox)->isEnabled() && !page.canClickReset());
            QVERIFY(page.page.pendingEdits().empty()); // Apply would store nothing.
        }
        store(settings(), {{keys::TessellationHighQuality, "false"}}); // Is not set, so does not count.
        page.page.initializeWidget();
        QVERIFY(page.find<QRadioButton>("defaultQuality")->isChecked());
        // A click on the low quality leaves the button as it is.
        const std::pair<const char*, bool> clicks[] = {
            {"lowQuality", false}, {"highQuality", true}, {"lowQuality", true}, {"defaultQuality", false}};
        for (const auto& [button, canClickReset] : clicks) {
            page.click(button);
            QCOMPARE(page.canClickReset(), canClickReset);
        }
        QTest::keyClick(page.find("defaultQuality"), Qt::Key_Down);
        storeBeside(page, {{keys::TessellationQualitySet, "true"}}); // To the low one, by another program.
        QVERIFY(page.find<QRadioButton>("highQuality")->isChecked() && page.find("highQuality")->hasFocus());
        QCOMPARE(page.changes.count(), 6 + 4 + 1);
        store(settings(), {{keys::TessellationQualitySet, "false"}});
        page.page.initializeWidget(); // The focus stays in the choice.
        QVERIFY(page.find("defaultQuality")->hasFocus());
        page.click("lowQuality");
        page.page.applyModifications();
        QVERIFY(page.canClickReset());
        QCOMPARE(stored(keys::TessellationQualitySet) + stored(keys::MaxFaceSagSet), QString("truefalse"));
        page.click("highQuality");
        QCOMPARE(page.page.pendingEdits()[0].field, page.find("highQuality"));
        QCOMPARE(page.reset(), 1);
        page.page.applyModifications();
        QCOMPARE(stored(keys::TessellationHighQuality), QString("true"));
    }

    void ratiosReachTheSimplifier()
    {
        {
            Simplification page(m_application.get(), settings());
            page.type("ratio2", "70");
            int level = 0;
            for (const char* name : {"High", "Medium High", "Medium", "Medium-Low-Quality", "Low-Quality"})
                QCOMPARE(
                    page.find(QString("icon%1").arg(++level))->property("pixmap").value<QPixmap>().toImage(),
                    QIcon(QString(":/controlCenter/controlCenter/%1.png").arg(name)).pixmap(64).toImage());
            QVERIFY(page.changes.count() == 1 && page.canClickReset() &&
                    m_application->manager.ratios.isEmpty());
            // Only the levels beside it follow, the one above upwards and the one below downwards.
            const char* const edits[][3] = {{"ratio4", "60", "1/0.7/0.6/0.6/0.1"},
                                            {"ratio3", "80", "1/0.8/0.8/0.6/0.1"},
                                            {"ratio2", "20", "1/0.2/0.2/0.6/0.1"},
                                            {"ratio4", "5", "1/0.2/0.2/0.05/0.05"}};
            for (const auto& [level, percentage, ratios] : edits) {
                page.type(level, percentage);
                QVERIFY(!page.page.applyModifications());
                QCOMPARE(stored(keys::SimplificationRatios), QString(ratios));
            }
            QCOMPARE(m_application->manager.ratios.first(), (std::vector<float>{1.f, .7f, .6f, .6f, .1f}));
            page.type("ratio5", "70"); // Above level 3: what is made again is as it was.
            page.page.discardEdits()();
            page.page.applyModifications();
            QCOMPARE(stored(keys::SimplificationRatios), QString("1/0.2/0.2/0.7/0.7"));
            page.type("ratio5", "60"); // The levels are edited together.
            store(settings(), {{keys::SimplificationRatios, "1/0.9/0.1/0.1/0.1"}});
            page.page.applyModifications();
            QCOMPARE(stored(keys::SimplificationRatios), QString("1/0.2/0.2/0.7/0.6"));
            // An application that ends each edit at once: the nested one says nothing of its own.
            connect(page.find("ratio3"), SIGNAL(valueChanged(double)), &page.page,
                    SLOT(on_ratio3_editingFinished()));
            const int changes = page.changes.count();
            page.type("ratio2", "10");
            QVERIFY(page.changes.count() == changes + 1 && !page.page.applyModifications());
            QCOMPARE(stored(keys::SimplificationRatios), QString("1/0.1/0.1/0.1/0.6"));
        }
        settings().remove(keys::SimplificationRatios);
        QVERIFY(!Simplification(nullptr, settings()).page.hasModifications());
        registerDefaults({}); // Without them the page keeps what it shows.
        Simplification page(nullptr, settings());
        QVERIFY(page.reset() == 1 && page.canClickReset() && !page.page.applyModifications());
        QCOMPARE(stored(keys::SimplificationRatios), QString("1/0.75/0.5/0.25/0.01"));
    }

    void pluginsAreThoseOfTheFirstOpening()
    {
        store(settings(), {{keys::LogFile, "/logs/log.txt"}});
        FakePlugin first, second;
        second.name = QString("A long name ").repeated(9);
        m_application->plugins = {&first, &second};
        About page(m_application.get(), settings());
        m_application->plugins.clear();
        page.page.initializeWidget();

        auto* table = page.find<QTableWidget>("tableWidget");
        QCOMPARE(table->rowCount(), 2);
        const QStringList texts = {"Reader", "v. 1.2", second.name, "v. 1.2"};
        for (int cell = 0; cell < texts.size(); ++cell)
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                QCOMPARE(table->item(cell / 2, cell % 2)->data(role).toString(), texts[cell]);
        QVERIFY(table->isVisible() && table->rowHeight(1) > table->rowHeight(0));
        QCOMPARE(table->viewport()->height(), table->verticalHeader()->length());
        QCOMPARE(table->columnWidth(0), 260);
        auto* area = page.find<QScrollArea>("scrollArea");
        QEvent language(QEvent::LanguageChange);
        for (const bool resized : {false, true}) {
            area->setFixedHeight(9);
            resized ? page.page.resize(300, 2000) : void(QCoreApplication::sendEvent(&page.page, &language));
            QCOMPARE(area->height(), area->widget()->heightForWidth(area->viewport()->width()));
        }
        page.click("copyButton");
        QStringList report = QApplication::clipboard()->text().split('\n');
        QCOMPARE(report.takeAt(1), QString("Qt %1, %2").arg(qVersion(), systemName()));
        QCOMPARE(report.join("\n"), QString("Torvane %1 (X64)\nSettings: %2\nLog: %3\n"
                                            "Plug-in: Reader v. 1.2\nPlug-in: %4 v. 1.2")
                                        .arg(kqDMIApplication::GetKernelVersion(),
                                             QDir::toNativeSeparators(settings().fileName()),
                                             QDir::toNativeSeparators("/logs/log.txt"), second.name));
        const QString notice = page.find<QLabel>("noticeLabel")->text();
        QVERIFY(notice.contains(QString(" - %1 ").arg(::ZelControlCenter::Version::GetYear())));
        QCOMPARE(page.find("applicationIcon")->property("pixmap").value<QPixmap>().size(), QSize(96, 96));
    }

    void linksOpenFromTheKeyboard()
    {
        QDesktopServices::setUrlHandler("https", this, "open");
        About page(nullptr, settings());
        QVERIFY(!page.find("pluginsFrame")->isVisible());
        auto* components = page.find<QLabel>("libUseLabel_2");
        QVERIFY(components->accessibleName().startsWith("Qt, application toolkit"));
        auto* notice = components->findChild<QLabel*>();
        components->setFocus(Qt::TabFocusReason);
        for (const char* link : {"Qt", "Qt Solutions, QtSingleApplication", "Open Sans"}) {
            for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return})
                QTest::keyClick(components, key);
            QTRY_COMPARE(notice->accessibleName(), QString(link));
        }
        QDesktopServices::unsetUrlHandler("https");
        QCOMPARE(m_openedHosts.join(" "), QString("www.qt.io github.com fonts.google.com"));
        for (QWidget* active : {static_cast<QWidget*>(nullptr), page.window}) { // Read again.
            QApplication::setActiveWindow(active);
            QTRY_COMPARE(notice->isVisible(), active == page.window);
        }
        QCOMPARE(roleOf(notice), NoticeRole);
    }
};

QTEST_MAIN(tst_Pages)
#include "tst_Pages.moc"
