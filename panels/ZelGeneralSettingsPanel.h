#ifndef ZEL_ZELGENERALSETTINGSPANEL_H
#define ZEL_ZELGENERALSETTINGSPANEL_H

#include "ZelEditablePanel.h"
#include "base/ZelExport.h"

#include <QString>

#include <memory>

class QPushButton;

namespace Ui {
class ZelGeneralSettingsPanel;
}

namespace zel {

/// What the General page edits.
struct GeneralModel
{
    /// Folder of the 3D database cache.
    QString cacheDirectory;
    /// Folder of the screenshots.
    QString screenshotFolder;
    int cacheSize = 0; ///< Megabytes.
};

ZEL_EXPORT bool operator==(const GeneralModel& left, const GeneralModel& right);

/// The page "Folders": where the disk cache and the screenshots are kept, and how large the cache may grow.
/// The tool tip of a folder button is the folder itself; its text is only as much of it as fits.
class ZEL_EXPORT ZelGeneralSettingsPanel : public ZelEditablePanel<GeneralModel>
{
    Q_OBJECT

public:
    /// Names the page and fills nothing yet. The arguments are those of ZelSettingsPanel.
    ZelGeneralSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                            Qt::WindowFlags flags);
    ~ZelGeneralSettingsPanel() override;

Q_SIGNALS:
    /// Emitted after each edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// What the user does in the form; connected by the names of its widgets.
    void on_databaseButton_clicked();
    void on_screenshotFolderButton_clicked();
    void on_databaseSpinBox_valueChanged(int megabytes);
    void on_resetButton_clicked();
    /// @}

protected:
    /// @{
    /// Shows as much of the folders' paths as there is room for.
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// @}

    void getCurrentModel(GeneralModel& model) const override;
    void applyModel(const GeneralModel& model) override;
    void saveSettingsInternal() override;
    void pushToApplication() override;

    /// True when the cache moves to a folder that is neither the stored one nor the one in use since the
    /// start.
    bool shouldRestart() const override;
    void notifyStateChanged() override;

    /// Shows the end of each folder's path, as much of it as its button can hold.
    void elideText();
    /// Hands the folder of the screenshots to the running application.
    void setScreenshotFolder();
    /// Hands the size of the cache to the running application.
    void setMaxCacheSize();

private:
    void chooseFolder(QPushButton* button, const QString& title);

    const std::unique_ptr<Ui::ZelGeneralSettingsPanel> m_ui;
    const QString m_initialCacheDirectory;
};

} // namespace zel

#endif
