#include "platform/kqDMPlugin.h"

kqDMPlugin::~kqDMPlugin() = default;
