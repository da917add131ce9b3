// A small host: the control center beside a view, with an action, a settings page and a key of its own.

#include <QApplication>
#include <QDir>
#include <QFormLayout>
#include <QMessageBox>
#include <QPushButton>

#include <zel/SettingsKeys.h>
#include <zel/ZelControlCenter.h>
#include <zel/ZelEditablePanel.h>
#include <zel/ZelHelpArea.h>
#include <zel/ZelSettingsApplication.h>
#include <zel/ZelSettingsFile.h>
#include <zel/platform/MTLogger.h>
#include <zel/platform/kqDMGuiPlugin.h>
#include <zel/platform/kqDirUtils.h>
#include <zel/platform/zelAction.h>
#include <zel/zelSpinBox.h>

const char* const MinutesKey = "backup/minutes";

bool ensureMinutes(const QString&, const QString& defaultValue, QString& value, QString&)
{
    bool isNumber = false;
    const int minutes = value.toInt(&isNumber);
    value = isNumber ? QString::number(qBound(0, minutes, 60)) : defaultValue;
    return true;
}

struct BackupModel
{
    int minutes = 0;
};

class BackupPage : public zel::ZelEditablePanel<BackupModel>
{
    Q_OBJECT

public:
    explicit BackupPage(kqDMIApplication& host)
        : ZelEditablePanel(&host, host.getSettings(), nullptr, Qt::WindowFlags())
    {
        auto* minutes = new zel::zelSpinBox(this);
        auto* reset = new QPushButton(tr("Default"), this);
        reset->setObjectName(QLatin1String("resetButton"));
        minutes->setRange(0, 60);
        auto* layout = new QFormLayout(this);
        layout->addRow(tr("Minutes between backups"), minutes);
        layout->addRow(reset);
        setPanelName(tr("Backups"));
        setRows({row(MinutesKey, &BackupModel::minutes, minutes, zel::EffectAtOnce,
                     tr("How often your work is saved. Without backups, set 0."))});
        connect(minutes, SIGNAL(valueChanged(int)), SLOT(onMinutesChanged()));
        connect(reset, SIGNAL(clicked()), SLOT(onResetClicked()));
    }

Q_SIGNALS:
    void stateChanged();

private Q_SLOTS:
    void onMinutesChanged() { onEdited(); }
    void onResetClicked() { resetContent(); }
};

/// The application object. As a plug-in, it lets the control center ask the user.
class Host : public zel::ZelSettingsApplication, public kqDMGuiPlugin
{
public:
    using ZelSettingsApplication::ZelSettingsApplication;

    kqDMGuiPlugin* getGuiPlugin() const override { return const_cast<Host*>(this); }
    QWidget* getMainViewWidget() const override { return nullptr; }
};

int main(int argc, char** argv)
{
    QApplication qt(argc, argv);
    const QString name = QLatin1String("TorvaneMinimal");
    const QString folder =
        QString::fromUtf8(kqDirUtils::GetAppDataFolderUtf8().c_str()) + QLatin1String("/") + name;
    QDir().mkpath(folder);
    zel::ZelControlCenter::RegisterSetting(QLatin1String(MinutesKey), QLatin1String("10"), &ensureMinutes);
    zel::ZelControlCenter::InitDefaultSettingsValues(name);
    Host host(folder);
    QString error;
    if (!zel::ZelSettingsFile::Repair(host.getSettings(), error)) {
        QMessageBox::critical(nullptr, name, error);
        return 1;
    }
    const QString log = host.getSettings().value(QLatin1String(zel::keys::LogFile)).toString();
    MTLogger::InstallFileHandler(log.toUtf8().constData(), host.isDiagModeEnable(), std::string());
    QWidget window;
    BackupPage page(host);
    zelAction about(QLatin1String("about"), QLatin1String("About Qt"), nullptr);
    QObject::connect(&about, SIGNAL(triggered()), &qt, SLOT(aboutQt()));
    zel::ZelControlCenter center(&host, nullptr, Qt::WindowFlags());
    center.settingsWidget()->setStyleSheet(
        kqDMIApplication::GetStylesheet(QLatin1String("ZelControlCenter")));
    center.registerCCAction(&about, QLatin1String("Settings"), false, false, true);
    center.registerSettingsPanel(&page);
    zel::ZelHelpArea help;
    help.setMinimumWidth(330);
    help.follow(center); // After all pages are registered.
    QPushButton view(QLatin1String("Menu"));
    view.setCheckable(true);
    QObject::connect(&view, SIGNAL(clicked(bool)), &center, SLOT(openMenu(bool)));
    QHBoxLayout layout(&window);
    layout.addWidget(&center);
    layout.addWidget(center.settingsWidget());
    layout.addWidget(&help);
    layout.addWidget(&view, 1);
    window.show();
    return QApplication::exec();
}

#include "main.moc"
