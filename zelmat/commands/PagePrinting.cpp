#include "zelmat/commands/PagePrinting.h"

#include <unistd.h>

#include "zelmat/files/ChildProgram.h"

namespace zelmat {

std::optional<std::string> PrintedPage(const std::string& html, Progress& progress, Findings& findings) {
    constexpr int kMinutes = 20;  // of 500 materials it takes some
    constexpr std::size_t kLargest = std::size_t{1} << 30U;
    const ScratchFolder folder(findings);
    if (!folder.Exists() || !folder.Write("page.html", html, findings)) return std::nullopt;
    ChildProgram chromium{
        .name = "chromium",
        .arguments = {"--headless", "--disable-gpu", "--no-first-run", "--disable-background-networking",
                      "--host-resolver-rules=MAP * ~NOTFOUND",
                      "--user-data-dir=" + folder.Path() + "/profile", "--no-pdf-header-footer",
                      "--print-to-pdf=page.pdf", "file://" + folder.Path() + "/page.html"},
        .needed = "a report as PDF",
        .package = "chromium",
        .minutes = kMinutes,
        .waited = [&progress](std::size_t seconds) {
            progress.Tell("printing for", seconds, std::size_t{kMinutes} * 60, "s at most");
        }};
    // Its sandbox does not work for root.
    if (::geteuid() == 0) chromium.arguments.insert(chromium.arguments.begin(), "--no-sandbox");
    if (!RunChild(chromium, folder, findings)) return std::nullopt;
    std::string pdf = folder.Read("page.pdf", kLargest);
    if (pdf.starts_with("%PDF-")) return pdf;
    findings.Add({FindingKind::UNREADABLE, {"chromium", 0}, "program-failed", "the program made no PDF", {}});
    return std::nullopt;
}

}  // namespace zelmat
