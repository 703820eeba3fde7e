#include "support/FakeDialogs.h"

#include <QtGlobal>
#include <utility>

int FakeDialogs::MessageBox(const QString& text, int flags, const QString& title) {
    Boxes.push_back({text, flags, title});
    if (BoxAnswers.empty()) {
        qFatal("a message box that the test did not expect: %s", qPrintable(text));
    }
    const int answer = BoxAnswers.front();
    BoxAnswers.erase(BoxAnswers.begin());
    if (WhileAsking) {
        std::exchange(WhileAsking, {})();
    }
    return answer;
}

QString FakeDialogs::OpenFile(const QString& title, const QString& folder, const QString&) {
    PickerTitles += title;
    PickerFolders += folder;
    if (FileAnswers.isEmpty()) {
        qFatal("a file picker that the test did not expect: %s", qPrintable(title));
    }
    OnPicker();
    return FileAnswers.takeFirst();
}

QString FakeDialogs::SaveFile(const QString& title, const QString& folder, const QString& filter) {
    return OpenFile(title, folder, filter);
}

int FakeDialogs::PickColour(int) {
    if (ColourAnswers.empty()) {
        qFatal("a colour picker that the test did not expect");
    }
    OnPicker();
    const int answer = ColourAnswers.front();
    ColourAnswers.erase(ColourAnswers.begin());
    return answer;
}
