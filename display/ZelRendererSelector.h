#ifndef ZEL_ZELRENDERERSELECTOR_H
#define ZEL_ZELRENDERERSELECTOR_H

#include "base/ZelExport.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ZelRendererSelector;
}

namespace zel {

/// The question of the first start: which engine draws the models. "High" is the deferred renderer on the
/// graphics card, "Low" the software raytracer. The dialog stores nothing: run it with exec() and ask
/// useGPURenderer() when it was accepted.
///
/// A click on "High" or "Low" chooses it and gives it the focus; so does Space on the one that has the focus.
/// The window has no frame; it is moved by its title.
class ZEL_EXPORT ZelRendererSelector : public QDialog
{
    Q_OBJECT

public:
    /// "High" is chosen at first. The window is always frameless, for any flags.
    explicit ZelRendererSelector(QWidget* parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelRendererSelector() override;

    /// The latest choice, also after the dialog was rejected: true is "High", false is "Low".
    bool useGPURenderer() const;

    /// Turns a mouse release on one of the two engines into a choice. A release that changes the choice is
    /// consumed.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected Q_SLOTS:
    /// @{
    /// Accepts and rejects the dialog; connected by name to the form's buttons.
    void on_okButton_clicked();
    void on_closeButton_clicked();
    /// @}

protected:
    /// Space chooses the engine that has the focus.
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool choose(const QObject* engine);
    void announceChosen();

    std::unique_ptr<Ui::ZelRendererSelector> m_ui;
};

} // namespace zel

#endif
