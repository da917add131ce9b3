#ifndef ZEL_SETTINGSDRAWER_H
#define ZEL_SETTINGSDRAWER_H

#include "PageQueue.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QScrollArea>

class QBoxLayout;
class QPropertyAnimation;
class QVBoxLayout;

namespace zel {

class DrawerLayout;
class ZelSettingsPanel;

/// The drawer of the control center: a scroll area with the pages, one below the other. ControlCenterSlides
/// opens and closes it.
class SettingsDrawer : public QObject
{
    Q_OBJECT

public:
    /// In pixels, when it is open.
    static const int OpenWidth = 450;

    /// Takes the area out of its layout, so that the application can put it into one of its own, and hides
    /// it. Takes over the layout of the form that has the area's content, and puts the pages into another of
    /// its layouts. Anyone may delete the area.
    SettingsDrawer(QScrollArea* area, QVBoxLayout*& contentLayout, QBoxLayout* pageLayout, QObject* parent);

    /// Null as soon as its destruction has begun.
    QScrollArea* area() const { return qobject_cast<QScrollArea*>(m_area.data()); }
    bool isVisible() const { return m_area && m_area->isVisible(); }

    void addPage(ZelSettingsPanel* page);

    /// In pixels; 0 while it is hidden.
    int width() const;
    /// Shows the drawer with this width; 0 hides it.
    void setWidth(int width);
    /// Moves a drawer that stands right of a growing column, before the layout does. Once the column has
    /// covered a part of it, Qt would have to paint all of it again.
    void makeRoom(const QWidget& column, int columnWidth);
    /// Shows the drawer, but the pages that have not been seen yet only by showNewPages().
    /// @param progress  of the opening slide, from 0 to 1, which may begin anywhere
    void showWithoutNewPages(double progress);
    /// Shows as many of them as belong to this progress.
    void showNewPages(double progress);
    void showAllPages();

    /// Scrolls to a page, or until the drawer cannot scroll further.
    void scrollTo(const QWidget& widget);
    /// The page at this position of the scroll bar; null while the drawer scrolls to a page, and without
    /// pages.
    ZelSettingsPanel* pageAt(int position) const;

private Q_SLOTS:
    /// Scrolls to the focused field when the focus enters the drawer.
    void onFocusChanged(QWidget* previous, QWidget* current);
    /// Fits the width of the pages to the scroll bar, which may have appeared or gone.
    void onRangeChanged();

private:
    /// Shows pages, each of which may remove or delete pages, or delete this object, when it appears.
    void show(const QList<QPointer<QWidget>>& pages);
    void makeRoomFor(const QWidget& page);
    void layOutContent();

    const QPointer<QWidget> m_area;
    QBoxLayout* const m_pageLayout;
    DrawerLayout* const m_contentLayout;
    QPropertyAnimation* const m_scrolling;
    PageQueue m_newPages;
};

} // namespace zel

#endif
