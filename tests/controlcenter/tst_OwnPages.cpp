#include "FakeApplication.h"
#include "FakePage.h"
#include "SettingsKeys.h"
#include "ZelControlCenter.h"
#include "ZelGeneralSettingsPanel.h"

#include "platform/MTLogger.h"

#include <QtTest>
#include <QtWidgets>

/// What the control center does for those who write pages, and for those who forget something.
class tst_OwnPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unregisteredKeysAreLoggedOnce()
    {
        using zel::ZelControlCenter;
        FakeApplication application;
        const QString path = application.getApplicationFolder() + "/log.txt";
        MTLogger::InstallFileHandler(path.toStdString(), false, "");
        ZelControlCenter::RegisterSetting(zel::keys::CacheSize, "1024", &ZelControlCenter::noOp);
        zel::ZelGeneralSettingsPanel page(&application, application.getSettings(), nullptr,
                                          Qt::WindowFlags());
        ZelControlCenter controlCenter(&application, nullptr, Qt::WindowFlags());
        controlCenter.registerSettingsPanel(&page);
        controlCenter.setControlCenterVisible(true);
        MTLogger::RemoveFileHandler();
        ZelControlCenter::ClearSettingsValues();

        QFile log(path);
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QStringList warnings = QString::fromUtf8(log.readAll()).split('\n').filter("not registered");
        QCOMPARE(warnings.size(), 1);
        QVERIFY2(warnings[0].contains("\"Folders\"") && warnings[0].contains(zel::keys::ScreenshotFolder) &&
                     !warnings[0].contains(zel::keys::CacheSize),
                 qPrintable(warnings[0]));
    }

    void plainTextsAreReadable()
    {
        FakeApplication application;
        QStringList calls;
        FakePage page("Plain", application.getSettings(), calls);
        auto* dialog = new QDialog(&page);
        QWidget* const readable[] = {new QLabel("text", &page), new QCheckBox("text", &page),
                                     new QRadioButton("text", &page), new QLabel("text", dialog)};
        zel::ZelControlCenter controlCenter(&application, nullptr, Qt::WindowFlags());
        controlCenter.registerSettingsPanel(&page);
        for (QWidget* widget : readable) {
            widget->ensurePolished();
            const bool inDrawer = widget->window() != dialog;
            const QColor background =
                inDrawer ? QColor(69, 69, 69) : dialog->palette().color(QPalette::Window);
            const int difference =
                widget->palette().color(QPalette::WindowText).lightness() - background.lightness();
            QVERIFY2(inDrawer ? difference > 128 : difference < -128, widget->metaObject()->className());
        }
    }
};

QTEST_MAIN(tst_OwnPages)
#include "tst_OwnPages.moc"
