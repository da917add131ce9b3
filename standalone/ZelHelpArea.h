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

/// The area beside the pages with the help on one setting, that of the field which the pointer or the
/// keyboard focus has entered last: description, range, default, stored value and when an edit takes effect.
/// Two buttons put the stored value or the default back, while the setting differs from it.
///
/// The help comes from the ZelPageHelp of each page. The area is empty while it is too narrow.
class ZEL_EXPORT ZelHelpArea : public QWidget
{
    Q_OBJECT

public:
    /// Shows no setting until watchPages() is called.
    explicit ZelHelpArea(QWidget* parent = nullptr);
    ~ZelHelpArea() override;

    /// Shows the help of the pages among the descendants of a widget. Call it once, after they are
    /// registered.
    void watchPages(QWidget* tree);

public Q_SLOTS:
    /// Shows the help on the focused field, or a hint where there is none. While the area is too narrow, the
    /// help appears at the field.
    void showHelpOfFocusedField();
    /// Updates the area. Call it after edits are applied or discarded.
    void refresh();

protected:
    /// Hides the help while the area is too narrow.
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void showField(QWidget* field);
    void on_putBackButton_clicked();
    void on_defaultButton_clicked();

private:
    /// Null for a widget that is not a field of a page.
    static const ZelSettingHelp* helpOf(const QWidget* field);

    const std::unique_ptr<Ui::ZelHelpArea> m_ui;
    QPointer<QWidget> m_field;
    QList<QPointer<ZelPageHelp>> m_pages;
};

} // namespace zel

#endif
