#include "Log.h"

#include "platform/MTLogger.h"

#include <QString>

void zel::logWarning(const QString& text)
{
    MTLogger::Log("warning", text.toUtf8().constData());
}
