#ifndef ZEL_ZELIMPORTSETTINGSPANEL_H
#define ZEL_ZELIMPORTSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <array>
#include <memory>

namespace Ui {
class ZelImportSettingsPanel;
}

namespace zel {

/// The settings of the page "Tessellation". A value that is not set does not count: the import does not use
/// it.
struct ImportModel
{
    double maxFaceSag = 0;         ///< In the unit of the imported model.
    double maxFaceLength = 0;      ///< In the unit of the imported model.
    int maxFaceAngle = 0;          ///< Degrees.
    bool isHighQuality = false;    ///< True for high quality, false for low.
    bool qualitySet = false;       ///< The quality is used.
    bool maxFaceSagSet = false;    ///< The limit of the sag is used.
    bool maxFaceLengthSet = false; ///< The limit of the length is used.
    bool maxFaceAngleSet = false;  ///< The limit of the angle is used.
};

/// The page "Tessellation": how finely the import divides CAD models into triangles, by a quality or by
/// limits. The next import reads the settings.
class ZEL_EXPORT ZelImportSettingsPanel : public ZelEditablePanel<ImportModel>
{
    Q_OBJECT

public:
    /// Sets the name of the page, but loads nothing. The arguments are those of ZelSettingsPanel.
    ZelImportSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                           Qt::WindowFlags flags);
    ~ZelImportSettingsPanel() override;

Q_SIGNALS:
    /// Emitted after every edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// Connected to the widgets of the form by their names.
    void on_defaultQuality_clicked() { setQuality(false, true), onEdited(); }
    void on_highQuality_clicked() { setQuality(true, true), onEdited(); }
    void on_lowQuality_clicked();
    void on_defaultSag_clicked() { setFaceSagSet(false), onEdited(); }
    void on_sag_clicked() { setFaceSagSet(true), onEdited(); }
    void on_defaultLength_clicked() { setFaceLengthSet(false), onEdited(); }
    void on_length_clicked() { setFaceLengthSet(true), onEdited(); }
    void on_resetButton_clicked() { resetContent(); }
    void on_defaultAngle_clicked() { setFaceAngleSet(false), onEdited(); }
    void on_angle_clicked() { setFaceAngleSet(true), onEdited(); }
    /// @}

private:
    enum LimitIndex { Sag, Length, Angle };

    /// Names the page, and gives it its settings with their help, in the current language.
    void describeSettings();
    Row qualityRow();
    /// A row of a value that counts only while the user has set it; else the importer chooses it.
    template <class Value>
    Row choiceRow(const char* setKey, bool ImportModel::*set, const ZelFieldWidgets<bool>& choice,
                  const char* valueKey, Value ImportModel::*value, const ZelFieldWidgetsOf<Value>& widgets,
                  const QString& description);
    void setQuality(bool set, bool high);
    void setFaceSagSet(bool set) { setLimitSet(Sag, set); }
    void setFaceLengthSet(bool set) { setLimitSet(Length, set); }
    void setFaceAngleSet(bool set) { setLimitSet(Angle, set); }
    void setLimitSet(LimitIndex index, bool set);

    const std::unique_ptr<Ui::ZelImportSettingsPanel> m_ui;
    std::array<ZelFieldWidgets<bool>, 3> m_limits; ///< Whether each limit is set.
};

} // namespace zel

#endif
