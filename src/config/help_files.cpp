// Which file of a type of help is opened.
#include "platform/path_text.h"

#include <qxutility/config/help.h>
#include <qxutility/config/language.h>

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <exception>

static constexpr DWORD kEnglish = 1033;

HelpFileFinder::HelpFileFinder() = default;
HelpFileFinder::HelpFileFinder(const HelpFileFinder&) = default;
HelpFileFinder& HelpFileFinder::operator=(const HelpFileFinder&) = default;
HelpFileFinder::~HelpFileFinder() = default;

std::string HelpFileFinder::Find(std::string name) const
{
    return name;
}

HelpFileFinder* HelpFileFinder::Clone() const
{
    return new HelpFileFinder(*this);
}

// ---- Names of files that exist once per language

LocalizedFilenameMaker::LocalizedFilenameMaker(CLanguage& language) : m_language(&language) {}
LocalizedFilenameMaker::LocalizedFilenameMaker(const LocalizedFilenameMaker&) = default;
LocalizedFilenameMaker& LocalizedFilenameMaker::operator=(const LocalizedFilenameMaker&) = default;
LocalizedFilenameMaker::~LocalizedFilenameMaker() = default;

std::string LocalizedFilenameMaker::GetFilename(std::string name, DWORD lcid) const
{
    const std::size_t folder = qx::platform::FolderPart(name).size();
    const std::size_t dot = name.rfind('.');
    const bool hasDot = dot != std::string::npos && dot >= folder;
    return name.insert(hasDot ? dot : name.size(), "_" + m_language->GetLanguageName(lcid));
}

std::string LocalizedFilenameMaker::GetFilename(std::string name) const
{
    return GetFilename(std::move(name), m_language->GetLanguage());
}

std::string LocalizedFilenameMaker::GetDefaultFilename(std::string name, std::string section) const
{
    return GetFilename(std::move(name), m_language->GetDefault(std::move(section)));
}

// ---- Finding the file in the user's language

static bool HasValidNames(const boost::filesystem::path& path)
{
    const boost::filesystem::path names = path.relative_path();
    return std::all_of(names.begin(), names.end(), [](const boost::filesystem::path& name) {
        return boost::filesystem::native(name.string());
    });
}

// A text that is none in the user's code page throws.
static bool FileExists(const std::string& name)
try {
    const boost::filesystem::path path(name);
    boost::system::error_code error;
    return HasValidNames(path) && boost::filesystem::is_regular_file(path, error);
} catch (const std::exception&) {
    return false;
}

LocalizedHelpFileFinder::LocalizedHelpFileFinder(LocalizedFilenameMaker maker) : m_maker(maker) {}
LocalizedHelpFileFinder::LocalizedHelpFileFinder(const LocalizedHelpFileFinder&) = default;
LocalizedHelpFileFinder& LocalizedHelpFileFinder::operator=(const LocalizedHelpFileFinder&) =
    default;
LocalizedHelpFileFinder::~LocalizedHelpFileFinder() = default;

std::string LocalizedHelpFileFinder::Find(std::string name) const
{
    for (std::string localised : {m_maker.GetFilename(name), m_maker.GetFilename(name, kEnglish)})
        if (FileExists(localised))
            return localised;
    return name;
}

HelpFileFinder* LocalizedHelpFileFinder::Clone() const
{
    return new LocalizedHelpFileFinder(*this);
}
