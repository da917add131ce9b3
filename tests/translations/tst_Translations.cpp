#include "ShownPage.h"
#include "ZelCCActionItem.h"
#include "ZelControlCenterStandAloneWidget.h"
#include "ZelPageDefaults.h"
#include "ZelRendererSelector.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsPanel.h"

#include "platform/zelAction.h"

using namespace zel;

namespace {

/// Not valid for a widget without a text of its own.
QSize neededSize(const QWidget& widget)
{
    if (auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QSize() : button->minimumSizeHint();
    if (auto* label = qobject_cast<const QLabel*>(&widget); label && label->wordWrap())
        return QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()));
    if (widget.inherits("QLabel") || widget.inherits("QAbstractSpinBox") || widget.inherits("QComboBox"))
        return widget.sizeHint();
    return widget.inherits("QGroupBox") ? widget.minimumSizeHint() : QSize();
}

QString clippedTexts(const QWidget& window)
{
    for (int pass = 0; pass < 3; ++pass) // The texts change, then their sizes, then what holds them.
        QCoreApplication::processEvents();
    QString clipped;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        // The folder buttons take what room is left, and elide their paths.
        const QSize needed = neededSize(*widget);
        if (!needed.isValid() || !widget->isVisible() ||
            widget->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            continue;
        if (needed.boundedTo(widget->size()) != needed ||
            !widget->parentWidget()->rect().contains(widget->geometry()))
            QDebug(&clipped) << widget->objectName() << "needs" << needed << "and has" << widget->geometry();
    }
    return clipped;
}

/// All that a window says, also of what is hidden.
QStringList textsOf(QWidget* window)
{
    QStringList texts;
    QList<QObject*> objects = window->findChildren<QObject*>();
    objects << window;
    for (const QObject* object : objects) {
        for (const char* property :
             {"text", "title", "windowTitle", "shortcut", "toolTip", "statusTip", "accessibleName",
              "accessibleDescription", "announcedValue", "currentIndex", "styleSheet"})
            if (const QString text = object->property(property).toString(); !text.isEmpty())
                texts << object->objectName() + ' ' + property + ": " + text;
        const auto* items = qobject_cast<const QAbstractItemModel*>(object);
        for (int row = 0; items && row < items->rowCount(); ++row)
            texts << items->index(row, 0).data().toString();
        for (int column = 0; items && column < items->columnCount(); ++column)
            texts << items->headerData(column, Qt::Horizontal).toString();
    }
    texts.sort();
    return texts;
}

/// The editor with pending edits, of which the last one has the focus, and the choice of the renderer.
struct EditedWindow : User
{
    explicit EditedWindow(FakeApplication& application)
        : editor(&application, nullptr, Qt::FramelessWindowHint)
    {
        window = &editor;
        editor.resize(1100, 800);
        editor.show();
        editor.openMenu();
        QTRY_VERIFY(find<ZelControlCenter>("ZelControlCenter")->isSettingsOpen());
        QApplication::setActiveWindow(&editor);
        action.setShortcut(QKeySequence("Ctrl+Del"));
        click("deferredFXAACheckBox");
        for (QComboBox* box : editor.findChildren<QComboBox*>())
            box->setCurrentIndex(box->count() - 1);
        type("databaseSpinBox", "1234567");
        find("maxTrianglesSpinBox")->setFocus();
        QTest::keyClick(find("maxTrianglesSpinBox"), Qt::Key_PageUp);
    }

    /// Also the room for the longest help.
    QStringList texts()
    {
        QCoreApplication::processEvents();
        const QWidget* help = find("helpFrame")->parentWidget()->parentWidget()->parentWidget();
        return textsOf(&editor) + textsOf(&selector) + textsOf(&item)
               << QString::number(help->maximumHeight());
    }

    ZelControlCenterStandAloneWidget editor;
    ZelRendererSelector selector;
    zelAction action{"open", "", nullptr};
    ZelCCActionItem item{&action, nullptr, Qt::WindowFlags()}; // A viewer has more of them.
};

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private:
    FakeApplication m_application;
    FakePlugin m_plugin;
    QString m_language;
    std::map<QString, std::unique_ptr<QTranslator>> m_translators;

private Q_SLOTS:
    void initTestCase_data()
    {
        m_application.plugins = {&m_plugin};
        QTest::addColumn<QString>("language");
        for (const char* language : {"de", "en", "es", "fr", "it", "ja", "zh"})
            QTest::newRow(language) << QString(language);
    }

    void init()
    {
        QFETCH_GLOBAL(QString, language);
        m_language = language;
        for (const QString catalog : {"Torvane", "Toolkit"}) {
            auto& translator = m_translators[catalog];
            translator = std::make_unique<QTranslator>(); // The former one leaves the application.
            QVERIFY(translator->load(ZEL_STAGE "/resources/languages/" + catalog + "_" + language));
            QCoreApplication::installTranslator(translator.get());
        }
    }

    void textsFollowTheLanguage()
    {
        ZelPageDefaults::Register(QSettings(QString(), QSettings::IniFormat));
        QString error;
        QVERIFY(ZelSettingsFile::Repair(m_application.getSettings(), error));
        const auto speak = [this](const QString& language, auto change) {
            m_application.setLanguageCode(language);
            for (const auto& translator : m_translators)
                change(translator.second.get());
        };
        speak(m_language, [](QTranslator*) {});
        const QStringList translated = EditedWindow(m_application).texts();
        speak("en", &QCoreApplication::removeTranslator);
        EditedWindow shown(m_application);
        const QStringList untranslated = shown.texts();
        QCOMPARE(translated == untranslated, m_language == "en");
        QWidget* focused = QApplication::focusWidget();

        speak(m_language, &QCoreApplication::installTranslator);
        QTRY_COMPARE(shown.texts(), translated);
        QCOMPARE(bool(translated.contains("summaryLabel styleSheet: font-style: normal;")),
                 m_language == "ja" || m_language == "zh");
        QVERIFY(m_language != "de" || translated.contains("shortcut text: Strg+Entf"));
        QCOMPARE(QApplication::focusWidget(), focused);
        speak("en", &QCoreApplication::removeTranslator);
        QTRY_COMPARE(shown.texts(), untranslated);
    }

    void windowsShowTheirTexts()
    {
        const auto writing = m_language == "ja"   ? QFontDatabase::Japanese
                             : m_language == "zh" ? QFontDatabase::SimplifiedChinese
                                                  : QFontDatabase::Latin;
        QVERIFY2(!QFontDatabase().families(writing).isEmpty(), "no font with the characters is installed");
        const QMessageBox box(QMessageBox::NoIcon, "", "", QMessageBox::Cancel);
        const QString cancel = box.button(QMessageBox::Cancel)->text().remove('&');
        QCOMPARE(cancel == "Cancel", m_language == "en");

        ZelRendererSelector selector(nullptr, Qt::WindowFlags());
        selector.show();
        QCOMPARE(clippedTexts(selector), QString());
        QCOMPARE(selector.size(), QSize(517, 262));

        ZelControlCenterStandAloneWidget window(&m_application, nullptr, Qt::FramelessWindowHint);
        auto* controlCenter = window.findChild<ZelControlCenter*>();
        window.show();
        controlCenter->openMenu(true);
        QTRY_VERIFY(controlCenter->isMenuOpen());
        QTRY_COMPARE(clippedTexts(window), QString());
        window.openMenu();
        QTRY_VERIFY(controlCenter->isSettingsOpen());
        for (const char* engine : {"raytracerButton", "deferredButton"}) {
            window.findChild<QRadioButton*>(engine)->click();
            for (int quality = 0; quality < 4; ++quality) {
                window.findChild<QSlider*>("qualitySlider")->setValue(quality);
                QTRY_COMPARE(clippedTexts(window), QString());
            }
        }
        for (const QWidget* page : window.findChildren<ZelSettingsPanel*>())
            QVERIFY2(page->minimumSizeHint().width() <= 435, qPrintable(page->objectName()));

        QApplication::setActiveWindow(&window);
        window.resize(1012, 800); // Hardly wide enough for the help.
        const auto* help = window.findChild<QWidget*>("helpFrame");
        for (QWidget* field : controlCenter->settingsWidget()->findChildren<QWidget*>()) {
            field->setFocus();
            QVERIFY(help->isVisible());
            const QString name = help->findChild<QLabel*>("nameLabel")->accessibleName();
            QVERIFY2(!name.endsWith(':') && !name.endsWith(QChar(0xFF1A)), qPrintable(name));
            QTRY_COMPARE(clippedTexts(*help), QString());
        }
    }
};

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
