#include "shell/ui/ShellPictures.h"

QIcon ShellPicture(const platform::Files& files, const QString& path) {
    return files.Exists(path) ? QIcon(path) : QIcon();
}
