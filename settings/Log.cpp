#include "Log.h"

#include "platform/MTLogger.h"

#include <QString>

namespace zel {

namespace {

void log(const char* type, const QString& text)
{
    MTLogger::Log(type, text.toUtf8().constData());
}

} // namespace

void logInfo(const QString& text)
{
    log("info", text);
}

void logWarning(const QString& text)
{
    log("warning", text);
}

void logError(const QString& text)
{
    log("error", text);
}

} // namespace zel
