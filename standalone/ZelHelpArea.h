#ifndef ZEL_ZELHELPAREA_H
#define ZEL_ZELHELPAREA_H

#include "base/ZelExport.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace Ui {
class ZelHelpArea;
}

namespace zel {

class ZelPageHelp;
struct ZelSettingHelp;

/// The place beside the pages that tells of the setting to which the pointer or the keyboard has come last:
/// what it does, its range and its default, what is stored, and when an edit counts. It also says how the
/// setting differs from what is stored and from its default, with an action to undo each.
///
/// What it tells comes from the ZelPageHelp of each page. It shows nothing where it has too little room.
class ZEL_EXPORT ZelHelpArea : public QWidget
{
    Q_OBJECT

public:
    /// Empty until it follows a tree of widgets.
    explicit ZelHelpArea(QWidget* parent = nullptr);
    ~ZelHelpArea() override;

    /// Tells of the settings of every page below a widget from now on.
    void follow(QWidget* tree);

public Q_SLOTS:
    /// Shows the help of the field that has the keyboard focus; beside the field where this area is hidden. A
    /// field without help shows how to get some.
    void showHelpOfFocusedField();
    /// Shows again what may have changed: to be called when edits have been applied or discarded.
    void refresh();

protected:
    /// Hides what there is no room for.
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void showField(QWidget* field);
    void on_putBackButton_clicked();
    void on_defaultButton_clicked();

private:
    /// Null for a widget that is no field of a page.
    static const ZelSettingHelp* helpOf(const QWidget* field);

    const std::unique_ptr<Ui::ZelHelpArea> m_ui;
    QPointer<QWidget> m_field;
    QList<QPointer<ZelPageHelp>> m_pages;
};

} // namespace zel

#endif
