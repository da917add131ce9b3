#ifndef ZEL_ACCESSIBLECOMPAT_H
#define ZEL_ACCESSIBLECOMPAT_H

#include <QAccessible>
#include <QString>
#include <QVariant>

class QComboBox;
class QWidget;

namespace zel {

/// What assistive technology is told of a widget.
struct AccessibleTraits
{
    QAccessible::Role role;
    QString value;   ///< Of a slider, as a text.
    QVariant chosen; ///< Of a radio button; a null one for other widgets. To press it sends it the key Space.
    bool isSilent;   ///< Left out, as if it were invisible.
};

/// The role of a text that appears by itself.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
const QAccessible::Role NoticeRole = QAccessible::Notification;
#else
const QAccessible::Role NoticeRole = QAccessible::AlertMessage;
#endif

/// While it lives, Qt asks two functions about widgets instead of answering itself. There can be only one.
class AccessibleFactory
{
public:
    /// @param concerns  true for the widgets in question
    AccessibleFactory(bool (*concerns)(const QWidget&), AccessibleTraits (*traits)(const QWidget&));
    ~AccessibleFactory();

    AccessibleFactory(const AccessibleFactory&) = delete;
    AccessibleFactory& operator=(const AccessibleFactory&) = delete;
};

/// True where assistive technology gets values as numbers only, so that a text has to be in the description.
bool accessibleValuesAreNumbers();

/// Makes Qt ask again about a widget. Setting up a form already asks, and Qt keeps the answer.
void forgetAccessible(QWidget& widget);

/// @{
/// Tells that something has changed, or asks to read the widget out at once.
void tellAccessibleValue(QWidget& widget);
void tellAccessibleState(QWidget& widget);
void tellAccessibleAlert(QWidget& widget);
void tellAccessibleItem(QComboBox& box);
/// @}

} // namespace zel

#endif
