#include "ZelSettingsApplication.h"

#include "SettingsKeys.h"
#include "ZelSettingsFile.h"

namespace zel {

ZelSettingsApplication::ZelSettingsApplication(const QString& applicationFolder)
    : m_selection(nullptr)
    , m_settings(applicationFolder + "/" + SettingsFileName, QSettings::IniFormat)
    , m_applicationFolder(applicationFolder)
{
    ZelSettingsFile::UseFileEncoding(m_settings);
}

ZelSettingsApplication::~ZelSettingsApplication() = default;

} // namespace zel
