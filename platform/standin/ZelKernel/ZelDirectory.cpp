#include "platform/ZelDirectory.h"

#include "platform/standin/UserFolder.h"

std::string ZelDirectory::GetTempFolderUtf8(const std::string& applicationNameUtf8)
{
    return userFolderUtf8(UserFolder::Cache) + "/" + applicationNameUtf8;
}
