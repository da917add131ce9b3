#ifndef ZEL_ZELIMPORTSETTINGSPANEL_H
#define ZEL_ZELIMPORTSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <array>
#include <memory>

class QRadioButton;
class QWidget;

namespace Ui {
class ZelImportSettingsPanel;
}

namespace zel {

/// What the Import page edits.
struct ImportModel
{
    double maxFaceSag = 0;         ///< In the unit of the imported model.
    double maxFaceLength = 0;      ///< In the unit of the imported model.
    int maxFaceAngle = 0;          ///< Degrees.
    bool isHighQuality = false;    ///< True for high quality, false for low.
    bool qualitySet = false;       ///< The quality is in force.
    bool maxFaceSagSet = false;    ///< The limit of the sag is in force.
    bool maxFaceLengthSet = false; ///< The limit of the length is in force.
    bool maxFaceAngleSet = false;  ///< The limit of the angle is in force.
};

/// A value that is not set is not in force, and so makes no difference.
ZEL_EXPORT bool operator==(const ImportModel& left, const ImportModel& right);

/// The page "Tessellation": how finely CAD files are cut into triangles on import, by a quality or by limits
/// of their own. The next import reads the choices from the settings.
class ZEL_EXPORT ZelImportSettingsPanel : public ZelEditablePanel<ImportModel>
{
    Q_OBJECT

public:
    /// Names the page and fills nothing yet. The arguments are those of ZelSettingsPanel.
    ZelImportSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                           Qt::WindowFlags flags);
    ~ZelImportSettingsPanel() override;

Q_SIGNALS:
    /// Emitted after each edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// What the user does in the form; connected by the names of its widgets.
    void on_defaultQuality_clicked();
    void on_highQuality_clicked();
    void on_lowQuality_clicked();
    void on_defaultSag_clicked();
    void on_sag_clicked();
    void on_defaultLength_clicked();
    void on_length_clicked();
    void on_resetButton_clicked();
    void on_defaultAngle_clicked();
    void on_angle_clicked();
    /// @}

protected:
    void getCurrentModel(ImportModel& model) const override;
    void applyModel(const ImportModel& model) override;
    void notifyStateChanged() override;

private:
    /// The widgets of a limit, which is either left to the importer or set to the value of a spin box.
    struct Limit
    {
        bool ImportModel::*set;
        QRadioButton* byDefault;
        QRadioButton* byValue;
        QWidget* value;
    };
    enum { Sag, Length, Angle };

    template <class Box, class Value>
    Help limitHelp(int index, const Box* box, Value ImportModel::*value, const char* description,
                   const QStringList& keys) const;
    void setQuality(bool set, bool high);
    void setFaceSagSet(bool set) { setLimitSet(m_limits[Sag], set); }
    void setFaceLengthSet(bool set) { setLimitSet(m_limits[Length], set); }
    void setFaceAngleSet(bool set) { setLimitSet(m_limits[Angle], set); }
    void setLimitSet(const Limit& limit, bool set);

    const std::unique_ptr<Ui::ZelImportSettingsPanel> m_ui;
    std::array<Limit, 3> m_limits;
};

} // namespace zel

#endif
