#include "env/recovery.h"

#include "config/process.h"
#include "config/product_ini.h"
#include "env/wording.h"
#include "formats/whole_file.h"
#include "platform/choice_box.h"
#include "platform/files.h"

#include <qxutility/config/startup.h>
#include <qxutility/env/first_run.h>

#include <optional>
#include <vector>

namespace qx {

static constexpr int kRecoveryFailed = 1100;  // string: settings could not be restored
static constexpr int kUnchanged = 0, kChanged = 1, kEndProgram = 2;

static std::string GoodCopyOf(const std::string& iniFile)
{
    return iniFile + ".good";
}

static std::string OldCopyOf(const std::string& iniFile)
{
    return iniFile + ".old";
}

static std::optional<std::string> ReadBytes(const std::string& path)
{
    platform::File file(path.c_str(), platform::FileMode::ReadShared);
    const auto size = file.Size();
    if (!size)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(*size), '\0');
    const auto length = file.Read(bytes.data(), bytes.size());
    bytes.resize(length.value_or(0));
    return length ? std::optional(std::move(bytes)) : std::nullopt;
}

// At every moment `to` is the old or the new file.
static bool CopyOver(const std::string& from, const std::string& to)
{
    const auto bytes = ReadBytes(from);
    return bytes && WriteWholeFile(to.c_str(), *bytes);
}

bool IsIniFileInOrder(const std::string& iniFile)
{
    const auto text = ReadBytes(iniFile);
    return text && text->find('[') < text->find(']') && text->find(']') != std::string::npos &&
           text->find('\0') == std::string::npos;
}

void KeepGoodCopy(const std::string& iniFile, bool wasInOrder)
{
    if (!wasInOrder && platform::FileExists(GoodCopyOf(iniFile).c_str()))
        return;
    if (ReadBytes(iniFile) != ReadBytes(GoodCopyOf(iniFile)))
        CopyOver(iniFile, GoodCopyOf(iniFile));
}

static bool Restore(const std::string& iniFile)
{
    if (platform::FileExists(iniFile.c_str()))
        CopyOver(iniFile, OldCopyOf(iniFile));
    return CopyOver(GoodCopyOf(iniFile), iniFile);
}

static bool StartOver(const std::string& iniFile)
{
    return !platform::FileExists(iniFile.c_str()) ||
           platform::MoveOver(iniFile.c_str(), OldCopyOf(iniFile).c_str());
}

enum class Start { AsItIs, Restored, FromDefaults, NotAtAll };

static Start AskHowToStart(bool hasGoodCopy)
{
    std::vector<Start> starts = {Start::AsItIs};
    std::vector<std::string> answers = {Translated("Keep the current settings")};
    const auto offer = [&](Start start, const char* wording) {
        starts.push_back(start);
        answers.push_back(Translated(wording));
    };
    if (hasGoodCopy)
        offer(Start::Restored, "Restore the last good copy of the settings");
    offer(Start::FromDefaults, "Start over with the default settings");
    offer(Start::NotAtAll, "Close the program");
    const int answer =
        platform::ShowChoice(nullptr, Translated("How should the program start?").c_str(),
                             Translated("Configuration Recovery").c_str(), answers);
    return starts[static_cast<std::size_t>(answer)];
}

// The settings are others now, or the user is told why not.
static int Changed(bool done, const std::string& iniFile)
{
    Process().directories.fromIni = {};
    if (!done)
        ErrorMessage(nullptr, Translated("Configuration Recovery"), nullptr, kRecoveryFailed, MB_OK,
                     iniFile.c_str());
    return done ? kChanged : kUnchanged;
}

}  // namespace qx

int TroubleShoot(const char* company, const char* iniName)
{
    const std::string iniFile = qx::ProductIni(company, iniName);
    switch (qx::AskHowToStart(qx::platform::FileExists(qx::GoodCopyOf(iniFile).c_str()))) {
        case qx::Start::Restored:
            return qx::Changed(qx::Restore(iniFile), iniFile);
        case qx::Start::FromDefaults:
            return qx::Changed(qx::StartOver(iniFile), iniFile);
        case qx::Start::NotAtAll:
            return qx::kEndProgram;
        default:
            return qx::kUnchanged;
    }
}
