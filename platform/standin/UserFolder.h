#ifndef ZEL_USERFOLDER_H
#define ZEL_USERFOLDER_H

#include <string>

/// The kinds of data for which the operating system gives each user a folder.
enum class UserFolder { Settings, Cache };

/// Path of the current user's folder, in UTF-8 and without a slash at its end. It need not exist.
std::string userFolderUtf8(UserFolder folder);

#endif
