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
    QString cacheDirectory;
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
    ZelGeneralSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                            Qt::WindowFlags flags);
    ~ZelGeneralSettingsPanel() override;

Q_SIGNALS:
    void stateChanged();

protected Q_SLOTS:
    void on_databaseButton_clicked();
    void on_screenshotFolderButton_clicked();
    void on_databaseSpinBox_valueChanged(int megabytes);
    void on_resetButton_clicked();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

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
    void setScreenshotFolder();
    void setMaxCacheSize();

private:
    void chooseFolder(QPushButton* button, const QString& title);

    const std::unique_ptr<Ui::ZelGeneralSettingsPanel> m_ui;
    const QString m_initialCacheDirectory;
};

} // namespace zel

#endif
