#ifndef ZEL_ZELRENDERERSELECTOR_H
#define ZEL_ZELRENDERERSELECTOR_H

#include "base/ZelExport.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ZelRendererSelector;
}

namespace zel {

/// The dialog of the first start: it asks which engine draws the models. "High" is the deferred renderer on
/// the graphics card, "Low" the software raytracer. It stores nothing: run it with exec() and, if the user
/// accepts it, read useGPURenderer().
///
/// A click on "High" or "Low" chooses it and gives it the focus. While one of the two has the focus, Space
/// and Return choose it, and the arrow keys choose the one to the left or to the right. The window has no
/// frame; the user moves it by its title.
class ZEL_EXPORT ZelRendererSelector : public QDialog
{
    Q_OBJECT

public:
    /// Starts with "High" chosen. The window is frameless, whatever the flags.
    explicit ZelRendererSelector(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelRendererSelector() override;

    /// The latest choice, also after the user has rejected the dialog: true for "High", false for "Low".
    bool useGPURenderer() const;

    /// Chooses the engine on which the mouse was released. Consumes a release that changes the choice.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected Q_SLOTS:
    /// @{
    /// Connected to the buttons of the form by their names; they accept and reject the dialog.
    void on_okButton_clicked() { accept(); }
    void on_closeButton_clicked() { reject(); }
    /// @}

protected:
    /// Chooses an engine if one has the focus.
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// True when the choice has changed.
    bool choose(const QObject* engine);
    void announceEngines();

    std::unique_ptr<Ui::ZelRendererSelector> m_ui;
};

} // namespace zel

#endif
