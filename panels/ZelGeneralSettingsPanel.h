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

/// The settings of the page "Folders".
struct GeneralModel
{
    /// Folder of the 3D database cache.
    QString cacheDirectory;
    /// Folder of the screenshots.
    QString screenshotFolder;
    int cacheSize = 0; ///< Megabytes.
};

/// The page "Folders": the folders of the disk cache and the screenshots, and the size limit of the cache.
/// The tool tip of a folder button holds the folder; its text is the part of the path that fits.
class ZEL_EXPORT ZelGeneralSettingsPanel : public ZelEditablePanel<GeneralModel>
{
    Q_OBJECT

public:
    /// Sets the name of the page, but loads nothing. The arguments are those of ZelSettingsPanel.
    ZelGeneralSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                            Qt::WindowFlags flags);
    ~ZelGeneralSettingsPanel() override;

Q_SIGNALS:
    /// Emitted after every edit.
    void stateChanged();

protected Q_SLOTS:
    /// @{
    /// Connected to the widgets of the form by their names.
    void on_databaseButton_clicked();
    void on_screenshotFolderButton_clicked();
    void on_databaseSpinBox_valueChanged(int) { onEdited(); }
    void on_resetButton_clicked() { resetContent(); }
    /// @}

protected:
    /// @{
    /// Calls elideText().
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void onFilled(const GeneralModel& model) override;
    /// @}

    void saveSettingsInternal() override;
    void pushToApplication(const GeneralModel& model) override;

    /// True when the cache folder on the page is neither the stored one nor the one at the start.
    bool shouldRestart() const override;

    /// Shows on each folder button as much of the end of the path as fits.
    void elideText();
    /// Passes the folder of the screenshots to the running application.
    void setScreenshotFolder() { setScreenshotFolder(currentModel()); }
    /// Passes the size of the cache to the running application.
    void setMaxCacheSize() { setMaxCacheSize(currentModel()); }

private:
    /// Names the page, and gives it its settings with their help, in the current language.
    void describeSettings();
    void setScreenshotFolder(const GeneralModel& model);
    void setMaxCacheSize(const GeneralModel& model);
    void chooseFolder(QPushButton* button, const QString& title);

    const std::unique_ptr<Ui::ZelGeneralSettingsPanel> m_ui;
    const QString m_initialCacheDirectory;
};

} // namespace zel

#endif
