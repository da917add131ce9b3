#include "Version.h"

#include "base/VersionNumbers.h"

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
    return ZEL_MAJOR_MINOR_RELEASE_REVISION " " ZEL_YEAR_MONTH;
}

} // namespace ZelControlCenter
