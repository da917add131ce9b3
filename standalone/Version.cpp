#include "Version.h"

#define ZEL_MAJOR 1
#define ZEL_MINOR 1
#define ZEL_RELEASE 0
#define ZEL_REVISION 85
#define ZEL_YEAR 2024
#define ZEL_MONTH 1

#define ZEL_TEXT_OF(number) #number
#define ZEL_TEXT(number) ZEL_TEXT_OF(number)

#define ZEL_MAJOR_MINOR ZEL_TEXT(ZEL_MAJOR) "." ZEL_TEXT(ZEL_MINOR)
#define ZEL_MAJOR_MINOR_RELEASE ZEL_MAJOR_MINOR "." ZEL_TEXT(ZEL_RELEASE)
#define ZEL_MAJOR_MINOR_RELEASE_REVISION ZEL_MAJOR_MINOR_RELEASE "." ZEL_TEXT(ZEL_REVISION)

namespace ZelControlCenter {

namespace {

struct DescriptionTexts
{
    const char* publicText;
    const char* internalText;

    const char* get(bool internal) const { return internal ? internalText : publicText; }
};

const DescriptionTexts MajorMinor = {ZEL_MAJOR_MINOR, ZEL_MAJOR_MINOR};
const DescriptionTexts MajorMinorRelease = {ZEL_MAJOR_MINOR_RELEASE, ZEL_MAJOR_MINOR_RELEASE};
const DescriptionTexts MajorMinorReleaseRevision = {ZEL_MAJOR_MINOR_RELEASE_REVISION,
                                                    ZEL_MAJOR_MINOR_RELEASE_REVISION};

} // namespace

quint32 Version::GetMajor()
{
    return ZEL_MAJOR;
}

quint32 Version::GetMinor()
{
    return ZEL_MINOR;
}

quint32 Version::GetRelease()
{
    return ZEL_RELEASE;
}

quint32 Version::GetRevision()
{
    return ZEL_REVISION;
}

quint16 Version::GetYear()
{
    return ZEL_YEAR;
}

quint8 Version::GetMonth()
{
    return ZEL_MONTH;
}

const char* Version::GetDescStringMajorMinor(bool internal)
{
    return MajorMinor.get(internal);
}

const char* Version::GetDescStringMajorMinorRelease(bool internal)
{
    return MajorMinorRelease.get(internal);
}

const char* Version::GetDescStringMajorMinorReleaseRevision(bool internal)
{
    return MajorMinorReleaseRevision.get(internal);
}

const char* Version::GetDescStringMajorMinorReleaseRevisionDate()
{
    return ZEL_MAJOR_MINOR_RELEASE_REVISION " " ZEL_TEXT(ZEL_YEAR) "-" ZEL_TEXT(ZEL_MONTH);
}

} // namespace ZelControlCenter
