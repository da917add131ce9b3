// Stands for a viewer's plug-in that brings the control center with it.

#include "FakeApplication.h"
#include "ZelControlCenter.h"
#include "ZelControlCenterStandAloneWidget.h"

extern "C" Q_DECL_EXPORT void useControlCenter()
{
    const char* const Image = ":/controlCenter/controlCenter/reset.png";
    QVERIFY(zel::ZelControlCenter::GetDefaultSettingsValues().empty());
    QVERIFY(QFile::exists(Image));
    FakeApplication application;
    zel::ZelControlCenter::InitDefaultSettingsValues("Reload");
    zel::ZelControlCenter::RegisterSetting("Simplification/Ratios", "1/0.75/0.5/0.25/0.1",
                                           &zel::ZelControlCenter::ensureSimplificationRatios);
    QString error;
    QVERIFY2(zel::ZelControlCenter::EnsureSettings(application.getSettings(), error), qPrintable(error));
    {
        zel::ZelControlCenterStandAloneWidget window(&application, nullptr, Qt::WindowFlags());
        const auto* controlCenter = window.findChild<zel::ZelControlCenter*>();
        window.show();
        window.openMenu();
        QTRY_VERIFY(controlCenter->isMenuOpen() && controlCenter->isSettingsOpen());
    }
    zel::ZelControlCenter::CleanupRessources();
    QVERIFY(!QFile::exists(Image));
}
