#ifndef ZEL_ZELABOUTSETTINGSPANEL_H
#define ZEL_ZELABOUTSETTINGSPANEL_H

#include "ZelSettingsPanel.h"
#include "base/ZelExport.h"

#include <memory>

namespace Ui {
class ZelAboutSettingsPanel;
}

namespace zel {

/// The page "About": the version, the loaded plug-ins and the components of the product. It edits nothing.
class ZEL_EXPORT ZelAboutSettingsPanel : public ZelSettingsPanel
{
    Q_OBJECT

public:
    /// Sets the name of the page, but loads nothing. The arguments are those of ZelSettingsPanel.
    ZelAboutSettingsPanel(kqDMIApplication* application, QSettings& settings, QWidget* parent,
                          Qt::WindowFlags flags);
    ~ZelAboutSettingsPanel() override;

    /// Fills the page at the first call; plug-ins that are loaded later do not appear.
    void initializeWidget() override;
    bool hasModifications() const override { return false; }
    bool applyModifications() override { return false; }
    bool canResetContent() const override { return false; }
    void resetContent() override {}
    bool cancelModifications() override { return false; }
    /// Does nothing.
    virtual void saveSettings() {}

Q_SIGNALS:
    /// Never emitted.
    void stateChanged();

protected Q_SLOTS:
    /// Opens a link of the page in the browser.
    void onLinkActivated(const QString& link);
    /// Copies name, version, Qt, system, files and plug-ins as text, for the report of a fault.
    void on_copyButton_clicked();

protected:
    /// Fits the heights of the texts and of the table to the new width.
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Sets the texts that are not in the form.
    void setTexts();
    void fitHeights();
    void fillPlugins();

    const std::unique_ptr<Ui::ZelAboutSettingsPanel> m_ui;
    bool m_initialized;
};

} // namespace zel

#endif
