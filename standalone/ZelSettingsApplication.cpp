#include "ZelSettingsApplication.h"

#include "ZelSettingsFile.h"

namespace zel {

ZelSettingsApplication::ZelSettingsApplication(const QString& applicationFolder)
    : m_selection(nullptr)
    , m_settings(applicationFolder + "/Settings.ini", QSettings::IniFormat)
    , m_applicationFolder(applicationFolder)
{
    ZelSettingsFile::UseFileEncoding(m_settings);
}

ZelSettingsApplication::~ZelSettingsApplication() = default;

} // namespace zel
