#include "Announcement.h"

#include "platform/MTLogger.h"

#include <cstdio>

namespace {

bool inLogOnly = false;

} // namespace

void zel::announce(const char* type, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    MTLogger::Log(type, utf8.constData());
    if (inLogOnly)
        return;
    std::puts(utf8.constData());
    std::fflush(stdout);
}

bool zel::fail(const QString& text, QString& error)
{
    error = text;
    announce("error", error);
    return false;
}

void zel::announceInLogOnly()
{
    inLogOnly = true;
}
