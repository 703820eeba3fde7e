#include "platform/devices/DesktopHelp.h"

#include "platform/HelpPage.h"
#include "platform/devices/OpenPath.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Unlike the toolkit's own way to open an address, this one tells when nothing takes the page.
QString OpenInBrowser(const QString& page) {
    return OpenPath(page, {});
}

}  // namespace

DesktopHelp::DesktopHelp(const Files& files, Opener open)
    : files_(files), open_(open ? std::move(open) : OpenInBrowser) {}

QString DesktopHelp::Show(const QString& path, int contextNumber) {
    const QString page = HelpPage(files_, path, contextNumber);
    return page.isEmpty() ? u"There is no help in %1"_s.arg(HelpFolder(path)) : open_(page);
}

}  // namespace platform
