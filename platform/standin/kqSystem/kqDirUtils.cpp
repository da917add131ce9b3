#include "platform/kqDirUtils.h"

#include "platform/standin/UserFolder.h"

std::string kqDirUtils::GetAppDataFolderUtf8()
{
    return userFolderUtf8(UserFolder::Settings);
}
