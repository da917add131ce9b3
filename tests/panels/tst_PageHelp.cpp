#include "ShownPage.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelHelpArea.h"
#include "ZelPageDefaults.h"
#include "ZelRendererSelector.h"

using namespace zel;

namespace {

#if !defined(ZEL_LEAVE_OUT_everyControlIsAnnounced)
/// The controls below a widget that assistive technology cannot announce well, a line each.
QString poorlyAnnounced(QAccessibleInterface* tree, int& controls)
{
    QString poor;
    if (!tree || tree->state().invisible)
        return poor;
    const QAccessible::Role role = tree->role();
    const bool valued =
        role == QAccessible::Slider || role == QAccessible::SpinBox || role == QAccessible::ComboBox;
    if (tree->state().focusable && qobject_cast<QWidget*>(tree->object())) {
        ++controls;
        const QString name = tree->text(QAccessible::Name);
        if (name.isEmpty() || name.contains('<') || tree->text(QAccessible::Description).isEmpty() ||
            role == QAccessible::NoRole || role == QAccessible::Client ||
            (valued && tree->text(QAccessible::Value).isEmpty()))
            QDebug(&poor) << tree->object() << role << name << tree->text(QAccessible::Description)
                          << tree->text(QAccessible::Value) << '\n';
    }
    for (int i = 0; i < tree->childCount(); ++i)
        poor += poorlyAnnounced(tree->child(i), controls);
    return poor;
}
#endif

} // namespace

/// What the user is told about the settings: by texts, tool tips, marks and assistive technology.
class tst_PageHelp : public QObject, private User
{
    Q_OBJECT

private:
    QString said(const char* label) { return find<QLabel>(label)->text(); }
    QSettings& settings() { return m_application->getSettings(); }

    void open(const char* language)
    {
        m_window.reset();
        m_application = std::make_unique<FakeApplication>();
        m_application->setLanguageCode(language);
        QString error;
        QVERIFY(ZelControlCenter::EnsureSettings(settings(), error));
        m_window = std::make_unique<ZelControlCenterStandAloneWidget>(m_application.get(), nullptr,
                                                                      Qt::FramelessWindowHint);
        window = m_window.get();
        m_window->resize(1200, 800);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        m_window->openMenu();
        QTRY_VERIFY(m_window->findChild<ZelControlCenter*>()->isSettingsOpen());
    }

    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<ZelControlCenterStandAloneWidget> m_window;

private Q_SLOTS:
    void init()
    {
        registerDefaults({{"screenshot/ImageFolder", ""},
                          {"DBCache/cacheDirectory", ""},
                          {"DBCache/cacheSize", "1024"},
                          {"engine", "deferred"}});
        QSettings defaults(ZEL_DEFAULTS, QSettings::IniFormat);
        ZelPageDefaults::Register(defaults);
        open("en");
    }

    void tellsOfTheSettingReachedLast()
    {
        find("databaseSpinBox")->setFocus();
        QVERIFY(find("helpFrame")->isVisible());
        QCOMPARE(said("nameLabel"), QString("Cache size"));
        QCOMPARE(said("rangeLabel"), QString("10 Mo to 4,096 Mo"));
        QCOMPARE(said("defaultLabel"), QString("1,024 Mo"));
        const QString tip = QTextDocumentFragment::fromHtml(find("databaseSpinBox")->toolTip()).toPlainText();
        QVERIFY(tip.contains(said("descriptionLabel")) && tip.contains(said("effectLabel")));
        QCOMPARE(find("databaseSpinBox")->accessibleDescription(), tip);
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(find("label_29"), &enter); // A label stands for its field.
        QCOMPARE(said("nameLabel"), QString("Screenshot folder"));
        QVERIFY(find("screenshotFolderButton")->toolTip().isEmpty());

        QCoreApplication::processEvents();
        const QPoint drawer = m_window->findChild<ZelControlCenter*>()->settingsWidget()->pos();
        for (const int width : {1200, 800}) { // A field shows its tool tip where the area does not.
            m_window->resize(width, 600);
            QCOMPARE(find("helpFrame")->isVisible(), width == 1200);
            QHelpEvent rest(QEvent::ToolTip, QPoint(1, 1), find("databaseSpinBox")->mapToGlobal({1, 1}));
            QCoreApplication::sendEvent(find("databaseSpinBox"), &rest);
            QCOMPARE(QToolTip::isVisible(), width == 800);
        }
        QToolTip::hideText();
        find("databaseSpinBox")->setFocus();
        find<ZelHelpArea>("helpArea")->showHelpOfFocusedField();
        QString shown;
        for (const QWidget* box : QApplication::topLevelWidgets())
            shown += box->isVisible() ? box->metaObject()->className() : "";
        QVERIFY2(shown.contains("QWhatsThat"), qPrintable(shown));
        QWhatsThis::hideText();
        QCOMPARE(m_window->findChild<ZelControlCenter*>()->settingsWidget()->x(), drawer.x());
        QCOMPARE(m_window->width(), 800);
    }

    void marksAndTakesBackEdits()
    {
        const auto marked = [this] {
            QStringList pages;
            for (const QAbstractButton* button :
                 find("applicationSettings")->findChildren<QAbstractButton*>())
                if (button->accessibleDescription().contains("not applied"))
                    pages << button->text();
            return pages.join(" ");
        };
        QCOMPARE(marked(), QString());
        QCOMPARE(type("databaseSpinBox", "512"), QString("512 Mo"));
        QCOMPARE(marked(), QString("Folders"));
        find("databaseSpinBox")->setFocus();
        QVERIFY(!said("stateLabel").isEmpty());
        QTest::mouseClick(find("putBackButton"), Qt::LeftButton);
        QCOMPARE(find<QSpinBox>("databaseSpinBox")->value(), 1024);
        QVERIFY(said("stateLabel").isEmpty() && marked().isEmpty() && !find("putBackButton")->isEnabled());

        QCOMPARE(type("ratio3", "20"), QString("20"));
        QCOMPARE(type("ratio2", "30"), QString("30"));
        QTest::mouseClick(find("applyButton"), Qt::LeftButton);
        find("ratio2")->setFocus();
        QCOMPARE(said("storedLabel"), QString("30 %"));
        QTest::mouseClick(find("defaultButton"), Qt::LeftButton);
        QCOMPARE(find<QDoubleSpinBox>("ratio2")->value(), 75.0);
        QCOMPARE(find<QDoubleSpinBox>("ratio3")->value(), 20.0);
        QCOMPARE(marked(), QString("Simplification"));
    }

    void numbersFollowTheLanguage()
    {
        const char* const rows[][4] = {{"en", "4100", "4,096 Mo", "0.125"},
                                       {"en", "1.5", "15 Mo", "0.125"},
                                       {"de", "4.095", "4.095 MB", "0,125"},
                                       {"fr", "5", "10 Mo", "0,125"}};
        for (const auto& [language, size, shown, sag] : rows) {
            open(language);
            QCOMPARE(type("databaseSpinBox", size).section(' ', 0, 0), QString(shown).section(' ', 0, 0));
            find<QRadioButton>("sag")->click();
            QCOMPARE(type("faceSagSpin", sag), QString(sag));
            QTest::mouseClick(find("applyButton"), Qt::LeftButton);
            QCOMPARE(settings().value("Tesselation/TesselationMaxFaceSag").toString(), QString("0.125"));
        }
    }

#if !defined(ZEL_LEAVE_OUT_everyControlIsAnnounced)
    void everyControlIsAnnounced()
    {
        int controls = 0;
        for (const char* engine : {"raytracerButton", "deferredButton"}) {
            find<QRadioButton>(engine)->click();
            QCOMPARE(poorlyAnnounced(QAccessible::queryAccessibleInterface(m_window.get()), controls),
                     QString());
        }
        QVERIFY2(controls > 60, qPrintable(QString::number(controls)));
        const auto* quality = QAccessible::queryAccessibleInterface(find("qualitySlider"));
        QCOMPARE(quality->text(QAccessible::Value), QString("Medium"));
        const auto* list = QAccessible::queryAccessibleInterface(find("libUseLabel_2"));
        QVERIFY(list->text(QAccessible::Name).contains("Open Sans"));

        ZelRendererSelector selector(nullptr, Qt::WindowFlags());
        selector.show();
        QCOMPARE(poorlyAnnounced(QAccessible::queryAccessibleInterface(&selector), controls), QString());
        auto* low = QAccessible::queryAccessibleInterface(selector.findChild<QWidget*>("raytracerButton"));
        QVERIFY(low->role() == QAccessible::RadioButton && !low->state().checked);
        QApplication::setActiveWindow(&selector);
        low->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(low->state().checked && !selector.useGPURenderer());
    }
#endif
};

QTEST_MAIN(tst_PageHelp)
#include "tst_PageHelp.moc"
