#include "platform/kqDMSelection.h"

kqDMSelection::kqDMSelection(QObject* parent)
    : QObject(parent)
{
}

kqDMSelection::~kqDMSelection() = default;

bool kqDMSelection::isEmpty() const
{
    return m_components.empty();
}
