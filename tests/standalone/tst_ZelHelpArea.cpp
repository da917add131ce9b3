#include "Rows.h"
#include "ShownPage.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelHelpArea.h"
#include "ZelPageDefaults.h"
#include "ZelPageHelp.h"
#include "ZelRendererSelector.h"
#include "ZelRendererSettingsPanel.h"
#include "zelSpinBox.h"

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
class tst_ZelHelpArea : public QObject, private User
{
    Q_OBJECT

private:
    QString said(const char* label) { return find<QLabel>(label)->text(); }
    void point(const char* name) { QTest::mouseMove(find(name)); }
    /// The pointer rests where it is.
    void rest() { QMetaObject::invokeMethod(find<QTimer>("rest"), "timeout"); }
    QSettings& settings() { return m_application->getSettings(); }

    /// The pages with a mark.
    QString marked()
    {
        QStringList pages;
        for (const QAbstractButton* button : find("applicationSettings")->findChildren<QAbstractButton*>())
            if (button->accessibleDescription().contains("not applied"))
                pages << button->text();
        return pages.join(" ");
    }

    /// The lines of the list.
    QStringList pending()
    {
        QStringList lines;
        for (const QAbstractButton* line : find("pendingList")->findChildren<QAbstractButton*>("editButton"))
            if (line->isVisible())
                lines << line->accessibleName();
        return lines;
    }

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
        m_window->resize(1200, 600);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        m_window->openMenu();
        QTRY_VERIFY(showsPages(*m_window->findChild<ZelControlCenter*>()));
    }

    std::unique_ptr<FakeApplication> m_application;
    std::unique_ptr<ZelControlCenterStandAloneWidget> m_window;

private Q_SLOTS:
    void init()
    {
        registerDefaults({{"DBCache/cacheSize", "1024"}, {"engine", "deferred"}});
        ZelPageDefaults::Register(QSettings(QString(), QSettings::IniFormat));
        open("en");
    }

    void tellsOfTheSettingReachedLast()
    {
        QCOMPARE(said("nameLabel"), QString("Help")); // How to get it.
        QVERIFY(!find("factsFrame")->isVisible() && !find("actionsFrame")->isVisible());
        find("databaseSpinBox")->setFocus();
        QVERIFY(Qt::mightBeRichText(find("databaseSpinBox")->toolTip())); // Wraps.
        QCOMPARE(said("rangeLabel") + ", " + said("defaultLabel") + ", " + said("effectLabel"),
                 QString("10 Mo to 4,096 Mo, 1,024 Mo, at once"));
        const QString tip = QTextDocumentFragment::fromHtml(find("databaseSpinBox")->toolTip()).toPlainText();
        QVERIFY(tip.contains(said("descriptionLabel")) && tip.contains(said("effectLabel")));
        QCOMPARE(find("databaseSpinBox")->accessibleDescription(), tip);
        m_window->move(0, -120); // So that the pointer finds the field on a screen of 600 pixels.
        point("label_29");       // A label stands for its field, once the pointer rests on it.
        QCOMPARE(said("nameLabel"), QString("Cache size"));
        const auto restOnLabel = [this] {
            point("helpFrame"); // Again, because the label may still move.
            point("label_29");
            rest();
            return said("nameLabel");
        };
        QTRY_COMPARE(restOnLabel(), QString("Screenshot folder"));
        QVERIFY(find("screenshotFolderButton")->toolTip().isEmpty() && find("actionsFrame")->isVisible());
        QVERIFY(!find("rangeTitle")->isVisible() && !find("rangeLabel")->isVisible()); // A folder has none.
        QVERIFY(!ZelPageHelp::HelpOn(find("screenshotFolderButton"))->summary().contains("Range"));

        point("databaseSpinBox"); // On its way to the help the pointer crosses other fields.
        QTRY_VERIFY(find<QTimer>("rest")->isActive());
        point("helpFrame");
        rest();
        QCOMPARE(said("nameLabel"), QString("Screenshot folder"));
        find<QTimer>("rest")->stop();
        point("databaseSpinBox");
        QTRY_VERIFY(find<QTimer>("rest")->isActive());
        QTest::mouseMove(find("databaseSpinBox"), QPoint(2, 2)); // It does not rest yet.
        for (const char* name : {"Screenshot folder", "Cache size"}) {
            rest();
            QCOMPARE(said("nameLabel"), QString(name));
        }
        QCOMPARE(find<QTimer>("rest")->interval(), 400); // Milliseconds.
        point("label_29");
        QTRY_VERIFY(find<QTimer>("rest")->isActive());
        const QString path = QString::fromUtf8("/\360\237\230\200a");
        settings().setValue("DBCache/cacheDirectory", path);
        find("databaseButton")->setFocus(); // The keyboard came later.
        QVERIFY(!find<QTimer>("rest")->isActive());
        QCOMPARE(find("storedLabel")->accessibleName(), path);
        QCOMPARE(said("storedLabel").split(QChar(0x200B)).join("|"), // Where it may wrap.
                 QString::fromUtf8("/|\360\237\230\200|a"));
        m_window->resize(1600, 600);
        QTRY_COMPARE(find("helpFrame")->width(), 520); // Longer lines are hard to read.
        find("sceneUnitComboBox")->setEnabled(false);
        find<ZelHelpArea>("helpArea")->showHelp(find("sceneUnitComboBox")); // Can be edited another time.
        QVERIFY(find("actionsFrame")->isVisible());
        find<ZelHelpArea>("helpArea")->showHelp(find("ratio1")); // Which never changes.
        QVERIFY(!find("actionsFrame")->isVisible() && said("descriptionLabel").contains("cannot be changed"));
        auto* name = find<QLabel>("nameLabel");
        QVERIFY(name->toolTip().isEmpty());
        find("helpFrame")->resize(120, 400); // It is cut, and told in full elsewhere.
        QCOMPARE(name->toolTip() + name->accessibleName(), QString("No compression").repeated(2));
        QVERIFY(name->sizeHint().width() <= 120 - 24);
    }

    void showsTheHelpWhereThereIsRoom_data()
    {
        const std::tuple<const char*, QSize, bool, bool, bool> rows[] = {
            {"beside the drawer", {1012, 600}, true, false, true},
            {"in the column of the list", {1011, 600}, true, true, true},
            {"cut", {702, 530}, true, true, false},
            {"nowhere", {702, 460}, false, false, false},
        };
        addRows({"window", "shown", "inColumn", "whole"}, rows);
    }

    void showsTheHelpWhereThereIsRoom()
    {
        QFETCH(QSize, window);
        QFETCH(bool, shown);
        QFETCH(bool, inColumn);
        QFETCH(bool, whole);
        auto* size = find("databaseSpinBox");
        m_window->resize(window);
        for (int pass = 0; pass < 3; ++pass) // It is hidden for a moment when it moves.
            QCoreApplication::processEvents();
        QTRY_COMPARE(find("helpFrame")->isVisible(), shown);
        QCOMPARE(shown && find("mainPanel")->parentWidget()->isAncestorOf(find("helpFrame")), inColumn);
        size->setFocus();
        QTRY_COMPARE(find("helpFrame")->visibleRegion().boundingRect() == find("helpFrame")->rect(), whole);
        QHelpEvent rest(QEvent::ToolTip, QPoint(1, 1), size->mapToGlobal({1, 1}));
        QCoreApplication::sendEvent(size, &rest); // A field shows its tool tip where there is no help.
        QCOMPARE(QToolTip::isVisible(), !shown);
        QVERIFY(find<QTimer>("rest")->isActive()); // It may have come by scrolling.
        find<ZelHelpArea>("helpArea")->showHelp(size);
        QVERIFY(!find<QTimer>("rest")->isActive()); // Asked for, it stays.
        QCOMPARE(QApplication::activePopupWidget() == nullptr, whole);
        QToolTip::hideText();
    }

    void opensTheHelpBesideItsField()
    {
        auto* size = find("databaseSpinBox");
        m_window->resize(702, 460);
        size->setFocus();
        find<ZelHelpArea>("helpArea")->showHelp(size);
        const QRect screen = QApplication::desktop()->availableGeometry(size);
        const QPoint corner = screen.bottomRight() - size->mapTo(m_window.get(), QPoint(40, 40));
        for (const QPoint& place : {corner, QPoint()}) {
            QApplication::activePopupWidget()->close();
            m_window->move(place);
            find<ZelHelpArea>("helpArea")->showHelp(size);
            const QRect opened = QApplication::activePopupWidget()->geometry();
            QVERIFY(!opened.intersects({size->mapToGlobal({}), size->size()}));
            QVERIFY(screen.adjusted(-2, -2, 2, 2).contains(opened)); // This platform gives it a frame.
        }
        auto* opened = QApplication::activePopupWidget();
        settings().setValue("DBCache/cacheSize", 600);
        find<QSpinBox>("databaseSpinBox")->setValue(512);
        QVERIFY(opened->findChild<QLabel*>("stateLabel")->text().startsWith("Changed"));
        QTRY_COMPARE(pending().size(), 1);
        QVERIFY(opened->hasFocus());
        QTest::keyClick(opened->findChild<QPushButton*>("putBackButton"), Qt::Key_Return);
        QCOMPARE(opened->findChild<QLabel*>("stateLabel")->text(), QString("Not the default."));
        QTest::keyClick(opened, Qt::Key_Escape);
        QTRY_VERIFY(!find("openedHelp"));
    }

    void takesBackAnEditOfTheList()
    {
        QCOMPARE(marked(), QString());
        QCOMPARE(type("databaseSpinBox", "512"), QString("512 Mo"));
        QCOMPARE(marked(), QString("Folders"));
        QTRY_COMPARE(find("takeBack")->accessibleDescription(),
                     QString::fromUtf8("Cache size: 1,024 Mo \342\206\222 512 Mo"));
        find<QPushButton>("takeBack")->click();
        QVERIFY(find("databaseSpinBox")->hasFocus());
        QTest::keyClick(find("databaseSpinBox"), Qt::Key_Escape); // Makes no edit again.
        QVERIFY(marked().isEmpty() && find("pendingList")->isHidden());
    }

    void listsWhatNoFieldCanChange_data()
    {
        const std::tuple<const char*, QString, QString> rows[] = {
            {"first level", "0.9/0.75/0.5/0.25/0.1",
             QString::fromUtf8("No compression: 0.9/0.75/0.5/0.25/0.1 \342\206\222 100 %")},
            {"missing levels", "1/0.5",
             QString::fromUtf8("Simplification: 1/0.5 \342\206\222 1/0.75/0.5/0.25/0.1")},
            {"nothing", "1/0.75/0.5/0.25/0.1", ""}};
        addRows({"ratios", "listed"}, rows);
    }

    void listsWhatNoFieldCanChange()
    {
        QFETCH(QString, ratios);
        QFETCH(QString, listed);
        settings().setValue("Simplification/Ratios", ratios);
        settings().sync();
        for (auto* page : m_window->findChildren<ZelSettingsPanel*>())
            page->initializeWidget();
        for (auto* help : m_window->findChildren<ZelPageHelp*>())
            if (const auto* fixed = help->setting(find("ratio1")))
                QVERIFY(!fixed->differs(StoredValue)); // It offers nothing.
        type("databaseSpinBox", "512");
        QCOMPARE(marked(), QString(listed.isEmpty() ? "Folders" : "Folders Simplification"));
        QTRY_COMPARE(pending().size(), listed.isEmpty() ? 1 : 2);
        QCOMPARE(pending().value(1), listed);
        QCOMPARE(find("discardButton")->accessibleName() + find("discardButton")->accessibleDescription(),
                 QString("Discard changesNot applied yet"));
        for (const char* button : {"editButton", "takeBack"}) // What leads to no field does nothing.
            QCOMPARE(find("pendingList")->findChildren<QWidget*>(button).last()->isEnabled(),
                     listed.isEmpty());
        QVERIFY(find("discardButton")->isVisible());
        for (auto* button : find("pendingList")->findChildren<QAbstractButton*>())
            button->click();
        QCOMPARE(marked(), QString(listed.isEmpty() ? "" : "Simplification"));
        QVERIFY(!find("discardButton")->isVisible());
    }

    void buttonsClearTheMark_data()
    {
        const std::tuple<const char*, QString, QString> rows[] = {{"put back", "helpFrame", "putBackButton"},
                                                                  {"reset", "frame_4", "resetButton"},
                                                                  {"apply", "mainPanel", "applyButton"}};
        addRows({"place", "button"}, rows);
    }

    void buttonsClearTheMark()
    {
        QFETCH(QString, place);
        QFETCH(QString, button);
        ZelHelpArea own; // As a host has one beside pages of its own.
        own.follow(*m_window->findChild<ZelControlCenter*>());
        type("databaseSpinBox", "512");
        find("databaseSpinBox")->setFocus();
        own.showHelp(find("databaseSpinBox"));
        QVERIFY(said("stateLabel").startsWith("Changed") && marked() == "Folders");
        QTest::mouseClick(find(qPrintable(place))->findChild<QWidget*>(button), Qt::LeftButton);
        QVERIFY(!said("stateLabel").startsWith("Changed"));
        QCOMPARE(own.findChild<QLabel*>("stateLabel")->text(), said("stateLabel"));
        QCOMPARE(marked(), QString());
        QVERIFY(!find("putBackButton")->isEnabled());
        QCOMPARE(find("defaultButton")->isEnabled(), find("stateLabel")->isVisible());
    }

    void tellsRangeAndDefault_data()
    {
        const std::tuple<const char*, QString, QString> rows[] = {
            {"maxGPUSPinBox", "128 Mo to 8,096 Mo", "2,048 Mo"},
            {"sceneUnitComboBox", "Kilometer (km) to Millimeter (mm)", "Millimeter (mm)"},
            {"deferredFXAACheckBox", "on or off", "on"},
            {"deferredButton", "High Mode (Discrete Graphic Card) / Low Mode (Run everywhere)",
             "High Mode (Discrete Graphic Card)"},
            {"defaultQuality", "Default / High Quality / Low Quality", "chosen by Torvane"},
            {"defaultSag", "0.000 to 99.990", "chosen by Torvane"},
            {"ratio2", "1 % to 100 %", "75 %"}};
        addRows({"range", "byDefault"}, rows);
    }

    void tellsRangeAndDefault()
    {
        QFETCH(QString, range);
        QFETCH(QString, byDefault);
        find(QTest::currentDataTag())->setFocus();
        QCOMPARE(said("rangeLabel"), range);
        QCOMPARE(said("defaultLabel"), byDefault);
    }

    void levelsStayInOrder()
    {
        QCOMPARE(type("ratio3", "20"), QString("20"));
        QCOMPARE(type("ratio2", "30"), QString("30"));
        QTest::mouseClick(find("applyButton"), Qt::LeftButton);
        find("ratio2")->setFocus();
        QCOMPARE(said("storedLabel"), QString("30 %"));
        QTest::mouseClick(find("defaultButton"), Qt::LeftButton);
        QCOMPARE(find<QDoubleSpinBox>("ratio2")->value(), 75.0);
        QCOMPARE(find<QDoubleSpinBox>("ratio3")->value(), 20.0);
        QCOMPARE(marked(), QString("Simplification"));
        // What is put back lowers the next level, as an edit does.
        type("ratio2", "90");
        type("ratio3", "80");
        QTest::keyClick(find("ratio2"), Qt::Key_Backspace, Qt::AltModifier);
        QCOMPARE(find<QDoubleSpinBox>("ratio3")->value(), 30.0);
        // What is stored while it is being typed raises the former level.
        find("ratio3")->setFocus();
        find<QDoubleSpinBox>("ratio3")->selectAll();
        QTest::keyClicks(find("ratio3"), "95");
        QTest::keyClick(find("ratio3"), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(settings().value("Simplification/Ratios").toString().section('/', 1, 2),
                 QString("0.95/0.95"));
    }

    void aHostsBackgroundCoversNoBox()
    {
        qApp->setStyleSheet("QWidget { background: #ff0000; }");
        type("databaseSpinBox", "512");
        ZelRendererSelector selector(nullptr, Qt::WindowFlags());
        QMessageBox question(QMessageBox::Question, "Title", "Text", QMessageBox::Ok);
        question.setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
        for (QWidget* box : {find("helpFrame"), find("pendingList"), find("ZelGeneralSettingsPanel"),
                             find("ZelImportSettingsPanel"), find("ZelSimplificationSettingsPanel"),
                             find("ZelRendererSettingsPanel"), find("ZelAboutSettingsPanel"),
                             static_cast<QWidget*>(&selector), static_cast<QWidget*>(&question)}) {
            const QImage picture = pictureOf(box);
            for (QWidget* in : box->findChildren<QWidget*>())
                if (in->isVisibleTo(box) && picture.pixel(in->mapTo(box, {1, 1})) == qRgb(255, 0, 0))
                    QFAIL(qPrintable(in->objectName()));
        }
        qApp->setStyleSheet(QString());
    }

    void listsAllThatApplyWouldStore()
    {
        const QString folder = QString("/long").repeated(20) + "/R&D";
        // Another program has stored what does not count with the engine that is chosen here.
        const QString gpuMemory("Resources/MaxGPUMemory");
        const QVariant former = settings().value(gpuMemory);
        settings().setValue(gpuMemory, 1);
        find("screenshotFolderButton")->setToolTip(folder);
        find<QCheckBox>("deferredFXAACheckBox")->click();
        find<QRadioButton>("raytracerButton")->click();
        const QString texts =
            QString::fromUtf8(
                "Rendering engine: High Mode (Discrete Graphic Card) \342\206\222 Low Mode (Run everywhere)\n"
                "Antialiasing: on \342\206\222 off\nScreenshot folder:  \342\206\222 ") +
            folder;
        QTRY_COMPARE(pending().join("\n"), texts);
        settings().setValue(gpuMemory, former);
        const auto lines = find("pendingList")->findChildren<QAbstractButton*>("editButton");
        QVERIFY(lines[1]->toolTip().isEmpty() && !lines[1]->isEnabled()); // Its field is hidden.
        QHelpEvent rest(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(find("screenshotFolderButton"), &rest);
        QCOMPARE(QToolTip::text(), folder); // Also beside the help.
        m_window->resize(1200, 1000);
        find("raytracerButton")->setFocus();
        QCoreApplication::processEvents();
        QTRY_COMPARE(find("helpFrame")->visibleRegion().boundingRect(), find("helpFrame")->rect());
        m_window->resize(702, 600); // The texts are too long for the column.
        QTRY_COMPARE(lines[0]->toolTip(), lines[0]->accessibleName());
        QTRY_VERIFY(lines[2]->text().endsWith("/R&&D"));  // As it is, and with its end.
        QTRY_VERIFY(find("pendingList")->height() < 160); // Leaves room for the help.
        m_window->resize(1200, 600);
        const auto takeBack = find("pendingList")->findChildren<QAbstractButton*>("takeBack");
        for (int line = 0; line < 3; ++line)
            QCOMPARE(lines[line]->nextInFocusChain(), takeBack[line]);
        find("maxTrianglesSpinBox")->setFocus();
        for (QWidget* pressed : {lines[0], takeBack[0]}) { // Does not take in what is being typed.
            QTest::mousePress(inputOf(window), Qt::LeftButton, {}, pressed->mapTo(window, QPoint(9, 9)));
            QVERIFY(find("maxTrianglesSpinBox")->hasFocus());
            QTest::mouseRelease(inputOf(window), Qt::LeftButton, {}, QPoint(500, 5));
        }
        takeBack[2]->click();
        find("pendingList")->findChild<QAbstractButton*>("editButton")->click();
        QVERIFY(find("raytracerButton")->hasFocus());
        const auto place = [this] {
            QCoreApplication::processEvents();
            return find("pendingList")->mapTo(window, QPoint());
        };
        const QPoint still = place();
        find("maxTrianglesSpinBox")->setFocus(); // Has a shorter help.
        QCOMPARE(place(), still);
        m_window->resize(1200, 340);
        auto* help =
            qobject_cast<QScrollArea*>(find("helpFrame")->parentWidget()->parentWidget()->parentWidget());
        QTRY_VERIFY(help->verticalScrollBar()->maximum() > 0);
        help->verticalScrollBar()->setValue(9);
        find("databaseSpinBox")->setFocus(); // Its help is read from the top.
        QCOMPARE(help->verticalScrollBar()->value(), 0);
        takeBack[1]->click();
        QCOMPARE(pending().size(), 1);
        QVERIFY(find("softwareFrame")->isVisible()); // The other engine is still chosen.
        find<QPushButton>("discardButton")->click();
        QVERIFY(find("pendingList")->isHidden() && find<QCheckBox>("deferredFXAACheckBox")->isChecked());
    }

    void fieldsHaveCommandsOfTheirOwn()
    {
        auto* box = find<zelSpinBox>("databaseSpinBox");
        auto* help = find("ZelGeneralSettingsPanel")->findChild<ZelPageHelp*>();
        const QSignalSpy requests(help, SIGNAL(helpRequested(QWidget*)));
        const QSignalSpy reached(help, SIGNAL(reached(QWidget*)));
        box->setFocus();
        QCOMPARE(reached.count(), 1);
        settings().setValue("DBCache/cacheSize", 10);
        for (const bool byKeys : {true, false}) {
            for (const auto& [command, key, value, typed] :
                 {std::make_tuple("Put back", Qt::Key_Backspace, 10, "5000"),
                  std::make_tuple("Default", Qt::Key_Delete, 1024, "5")}) { // Outside the range.
                box->setFocus();
                box->setValue(value);
                box->selectAll();
                QTest::keyClicks(box, typed);
                const Later choose(0, [box, isDefault = value == 1024] {
                    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                    if (!menu)
                        return;
                    QCOMPARE(menu->x(), box->mapToGlobal(QPoint(5, 5)).x());
                    const auto own = menu->actions().mid(menu->actions().size() - 4);
                    QVERIFY(own[0]->isSeparator() && menu->actions().size() > 8); // Those of the editor, too.
                    QCOMPARE(own[1]->text() + own[2]->text() + own[3]->text(),
                             QString("Put back\tAlt+BackspaceDefault\tAlt+DelWhat is this?\tShift+F1"));
                    QCOMPARE(own[1]->isEnabled(), !isDefault); // The minimum is stored.
                    menu->setActiveAction(own[1 + isDefault]);
                    QTest::keyClick(menu, Qt::Key_Return);
                });
                QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), box->mapToGlobal({5, 5}));
                if (byKeys)
                    QTest::keyClick(box, key,
                                    Qt::AltModifier |
                                        (key == Qt::Key_Delete ? Qt::KeypadModifier : Qt::NoModifier));
                else
                    QCoreApplication::sendEvent(box, &asked);
                QCOMPARE(box->text(), box->shownText(value));
                QTest::keyClick(box, Qt::Key_Escape); // Makes no edit again.
                QCOMPARE(box->value(), value);
            }
        }
        box->setValue(10);
        QTRY_VERIFY(!find("takeBack"));
        QTest::keyClick(box, Qt::Key_Delete, Qt::AltModifier);
        QVERIFY(find("takeBack")->isEnabled()); // The default is an edit.
        QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
        QCOMPARE(requests.value(0).value(0).value<QWidget*>(), box);
    }

    void numbersFollowTheLanguage_data()
    {
        const std::tuple<const char*, QString, QString, QString, QString> rows[] = {
            {"English", "en", "41,00", "4,096", "0.125"},
            {"English, the wrong separator", "en", "1.5", "15", "0.125"},
            {"German", "de", "4.095", "4.095", "0,125"},
            {"French", "fr", "5", "10", "0,125"},
            {"Japanese", "ja", "5", "10", "0.125"},
        };
        addRows({"language", "size", "shown", "sag"}, rows);
    }

    void numbersFollowTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, size);
        QFETCH(QString, shown);
        QFETCH(QString, sag);
        open(language.toLatin1());
        QCOMPARE(find<QLabel>("summaryLabel")->font().italic(), language != "ja");
        QCOMPARE(type("databaseSpinBox", size.toLatin1()).section(' ', 0, 0), shown);
        find<QRadioButton>("sag")->click();
        QCOMPARE(type("faceSagSpin", sag.toLatin1()), sag);
        QTest::mouseClick(find("applyButton"), Qt::LeftButton);
        QCOMPARE(settings().value("Tesselation/TesselationMaxFaceSag").toString(), QString("0.125"));
        type("faceSagSpin", "3"); // Is not announced, so Apply is disabled.
        QVERIFY(!find("applyButton")->isEnabled() && pending().isEmpty());
        m_application->setLanguageCode("en");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(find("ZelImportSettingsPanel"), &change);
        QCOMPARE(find<QDoubleSpinBox>("faceSagSpin")->text(), QString("3.000"));
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
        for (const QString slider : {"coreUsed", "quality"}) {
            const auto* read = QAccessible::queryAccessibleInterface(find(slider + "Slider"));
            const QString shown = find<QLabel>(slider + "Label")->text();
            QCOMPARE(read->text(QAccessible::Value), shown);
            QVERIFY(read->text(QAccessible::Description).startsWith(shown + ". "));
            QVERIFY(read->role() == QAccessible::Slider && !read->state().checkable);
        }
        auto* value = QAccessible::queryAccessibleInterface(find("qualitySlider"))->valueInterface();
        value->setCurrentValue(2);
        QCOMPARE(QVariantList({value->minimumValue(), value->currentValue(), value->maximumValue(),
                               value->minimumStepSize()}),
                 QVariantList({0, find<QSlider>("qualitySlider")->value(), 3, 1}));
        QCOMPARE(value->currentValue().toInt(), 2);
        auto* units = find<QComboBox>("sceneUnitComboBox");
        const auto namesItem = [units] {
            return units->accessibleDescription() ==
                   units->currentText() + ". " + ZelPageHelp::HelpOn(units)->summary();
        };
        units->setFocus();
        QVERIFY(namesItem());
        QTest::keyClick(units, Qt::Key_Home);
        QVERIFY(namesItem());
        const auto* list = QAccessible::queryAccessibleInterface(find("libUseLabel_2"));
        QVERIFY(list->text(QAccessible::Name).startsWith("Qt, application toolkit\n"));

        ZelRendererSelector selector(nullptr, Qt::WindowFlags());
        selector.show();
        QCOMPARE(poorlyAnnounced(QAccessible::queryAccessibleInterface(&selector), controls), QString());
        auto* choice = QAccessible::queryAccessibleInterface(selector.findChild<QLabel*>("deferredButton"));
        QVERIFY(choice->state().checkable &&
                choice->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    }
#endif

    void labelsAndTheTabKeyFollowThePlaces()
    {
        QWidget* pages = m_window->findChild<QScrollArea*>()->widget();
        const auto middle = [pages](const QWidget* widget) {
            return widget->mapTo(pages, widget->rect().center());
        };
        for (const char* engine : {"raytracerButton", "deferredButton"}) {
            find<QRadioButton>(engine)->click();
            QCoreApplication::processEvents();
            int labels = 0, fields = 0;
            for (const auto* label : pages->findChildren<QLabel*>()) {
                if (!label->buddy() || !label->isVisible())
                    continue;
                ++labels;
                const int below = middle(label->buddy()).y() - middle(label).y(); // Of a slider.
                QVERIFY2(below > -12 && below < 36, qPrintable(label->objectName()));
            }
            const QWidget* last = nullptr;
            for (const QWidget* field = m_window.get();
                 (field = field->nextInFocusChain()) != m_window.get();) {
                if (!field->isVisible() || !pages->isAncestorOf(field) || !ZelPageHelp::HelpOn(field))
                    continue;
                ++fields;
                const bool isBeside = last && qAbs(middle(field).y() - middle(last).y()) < 12;
                QVERIFY2(!last || (isBeside ? middle(field).x() >= middle(last).x()
                                            : middle(field).y() > middle(last).y()),
                         qPrintable(field->objectName()));
                last = field;
            }
            QVERIFY2(labels > 1 && fields > 1, qPrintable(QString("%1 %2").arg(labels).arg(fields)));
        }
    }

    void tellsWhenEachEditTakesEffect()
    {
        QMap<QString, QStringList> fields;
        for (const auto* field : m_window->findChildren<QWidget*>())
            for (const auto* help : m_window->findChildren<ZelPageHelp*>())
                if (const auto* setting = help->setting(field); setting && setting->fields.first() == field)
                    fields[setting->effect] << field->objectName();
        fields["at once"].sort();
        QCOMPARE(QStringList(fields.keys()).join(", "),
                 QString("after a restart, at once, with the next import"));
        QCOMPARE(fields["at once"].join(" "), QString("databaseSpinBox maxTrianglesSpinBox ratio1 ratio2 "
                                                      "ratio3 ratio4 ratio5 screenshotFolderButton"));
        QCOMPARE(fields["with the next import"].size(), 4);
    }

    void tellsOfEdits()
    {
        auto* page = m_window->findChild<ZelRendererSettingsPanel*>();
        auto* help = page->findChild<ZelPageHelp*>();
        find<QSlider>("coreUsedSlider")->setMaximum(9); // Also on a machine with one core.
        QSignalSpy edits(help, SIGNAL(edited())), states(page, SIGNAL(stateChanged()));
        int fields = 0;
        auto widgets = page->findChildren<QWidget*>();
        std::reverse(widgets.begin(), widgets.end()); // The unit before SSAO, which disables it.
        for (QWidget* field : widgets) {
            if (!help->setting(field) || qobject_cast<QRadioButton*>(field))
                continue;
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space})
                if (edits.count() == fields)
                    QTest::keyClick(field, key);
            QVERIFY2(edits.count() == ++fields && states.count() == fields, qPrintable(field->objectName()));
        }
        QCOMPARE(fields, 10);
    }
};

QTEST_MAIN(tst_ZelHelpArea)
#include "tst_ZelHelpArea.moc"
