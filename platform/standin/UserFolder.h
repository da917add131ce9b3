#ifndef ZEL_USERFOLDER_H
#define ZEL_USERFOLDER_H

#include <string>

/// The kinds of data for which each user has a folder.
enum class UserFolder { Settings, Cache };

/// Path of the current user's folder, in UTF-8, without a slash at the end. The folder may not exist.
std::string userFolderUtf8(UserFolder folder);

#endif
