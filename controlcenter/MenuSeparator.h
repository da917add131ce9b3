#ifndef ZEL_MENUSEPARATOR_H
#define ZEL_MENUSEPARATOR_H

#include <QFrame>

namespace zel {

/// A line in the menu column. Its style sheet gives a translucent colour as "rgb", for which Qt 5 prints a
/// warning whenever it reads the sheet. Qt reads it from the property, so the property spells it "rgba".
class MenuSeparator : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString styleSheet READ readableSheet WRITE setStyleSheet)

public:
    explicit MenuSeparator(QWidget* parent)
        : QFrame(parent)
    {
        setStyleSheet("background:rgb(0,0,0,30);");
    }

    /// The style sheet without what Qt warns of.
    QString readableSheet() const { return styleSheet().replace("rgb(0,0,0,30)", "rgba(0,0,0,30)"); }
};

} // namespace zel

#endif
