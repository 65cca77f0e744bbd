#include "config/process.h"

#include "platform/module.h"

namespace qx {

static constexpr char kLanguageTable[] = "QXUTILITY_LANGUAGE_c.DAT";

static std::unique_ptr<CTableReader> OpenLanguageTable(HINSTANCE module)
{
    const std::string folder = platform::ModuleFolder(module);
    if (folder.empty())
        return nullptr;
    auto table =
        std::make_unique<CTableReader>((folder + kLanguageTable).c_str(), '\t', nullptr, nullptr);
    return table->Valid() ? std::move(table) : nullptr;
}

ProcessState& Process()
{
    static ProcessState state;
    return state;
}

void AttachProcess(HINSTANCE module)
{
    ProcessState& process = Process();
    if (process.module)
        return;
    process.module = module;
    process.table = OpenLanguageTable(module);
    process.language.Attach(module, process.table.get());
    process.iniFileName.clear();
}

void DetachProcess()
{
    ProcessState& process = Process();
    if (!process.module)
        return;
    // The language object stays attached, but no longer to the table that goes now.
    process.language.Attach(process.module, nullptr);
    process.table.reset();
    process.language.SetLanguage(9, 1);
    process.module = nullptr;
    process.iniFileName.clear();
    process.directories = {};
    process.assertsOff = false;
    process.assertSilenced[0] = process.assertSilenced[1] = false;
}

}  // namespace qx
