#include "print/pdf_settings.h"

namespace qx {

static constexpr int kSettingEscape = -5650, kPathEscape = -5500;

static std::vector<PdfSetting> SettingLines(const PdfJob& job)
{
    std::vector<PdfSetting> settings;
    const auto add = [&](std::string text) {
        settings.push_back({kSettingEscape, std::move(text)});
    };
    add("Save.App.Run: 0");  // the finished document is not opened
    add("Save.Type: 2");
    if (job.mail || job.silent) {
        add("Save.ShowSaveDialog: 0");
        add("Save.WhenExists: 1");
    }
    if (job.silent || job.pdf || job.mail)
        add("Save.FullFileName: " + job.path);
    return settings;
}

std::vector<PdfSetting> PdfSettings(std::string_view device, const PdfJob& job)
{
    if (device == kPdfDriver)
        return SettingLines(job);
    if (device == kPdfDriverDe && (job.mail || job.pdf))
        return {{kPathEscape, job.path}};
    return {};
}

}  // namespace qx
