#include "platform/kqDMGuiPlugin.h"

kqDMGuiPlugin::~kqDMGuiPlugin() = default;
