#ifndef ZEL_KQDMSELECTION_H
#define ZEL_KQDMSELECTION_H

#include "../base/ZelExport.h"
#include "kqDMIApplication.h"

#include <QObject>

#include <vector>

/// The components that the user has selected in the scene.
class ZEL_KERNEL_GUI_EXPORT kqDMSelection : public QObject
{
    Q_OBJECT

public:
    /// Empty at first.
    explicit kqDMSelection(QObject* parent = nullptr);
    ~kqDMSelection() override;

    /// True when nothing is selected.
    bool isEmpty() const;

private:
    std::vector<kqDMComponentId> m_components;
};

#endif
