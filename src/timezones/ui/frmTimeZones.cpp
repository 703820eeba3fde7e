#include "timezones/ui/frmTimeZones.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "foundation/NamedValues.h"
#include "foundation/RemovalQuestion.h"

using namespace Qt::StringLiterals;
using mduTimeZones::RowsOutcome;
using mduTimeZones::ShowFilter;

namespace {

constexpr int PaleYellow = 255 + 255 * 256 + 180 * 65536;

}  // namespace

frmTimeZones::frmTimeZones(const Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      handle_(program.Windows.NewHandle()),
      list_(program.Services, program.Module.Paths),
      model_(list_),
      balloon_(program.Services.Clock),
      menus_(this, [this](Item item) { RunItem(item); }) {
    setObjectName(Name());
    model_.OnChecked = [this](int position) { CheckRow(position); };
    balloon_.Closed = [this] {
        if (shell_ != nullptr) {
            shell_->PurgeSpeech();
        }
    };
    MakeControls();
    program_.Windows.Add(*this);
}

frmTimeZones::~frmTimeZones() {
    balloon_.Closed = nullptr;
    program_.Windows.Remove(*this);
}

void frmTimeZones::ShowMe(IForm& parentForm, IShell* shell, std::int16_t, std::int16_t) {
    shell_ = shell;
    setWindowTitle(parentForm.Caption() + u" - Tempolark"_s);
    LoadZoneList(ShowFilter::All);
    Show();
    setFocus();
}

void frmTimeZones::Tell(const QString& text) {
    if (shell_ != nullptr) {
        shell_->ShowStatusMsg(text);
    }
}

void frmTimeZones::TellOutcome(const RowsOutcome& outcome, const QString& done) {
    for (const QString& problem : outcome.Problems) {
        Tell(problem);
    }
    if (outcome.Files > 0) {
        Tell(u"%1 %2 %3"_s.arg(outcome.Files)
                 .arg(outcome.Files == 1 ? u"time zone"_s : u"time zones"_s, done));
    } else if (outcome.Problems.isEmpty()) {
        Tell(u"Nothing had to be "_s + done);
    }
}

// A press of the map's button ends in the box, so its drag must end before.
int frmTimeZones::Ask(const QString& text, int flags, const QString& title) {
    imgMap_->EndDrag();
    return shell_ == nullptr ? 0 : shell_->ShowMsgbox(text, flags, title);
}

void frmTimeZones::SaveCheckedZones() {
    TellOutcome(mduTimeZones::SaveCheckedZones(program_.Services, program_.Module.Paths, list_),
                u"saved"_s);
    ShowRows();
}

// The shell also closes the clocks of these zones, which would write their files again.
RowsOutcome frmTimeZones::Remove(const QStringList& names) {
    const platform::Services& services = program_.Services;
    const PathTable& paths = program_.Module.Paths;
    return mduTimeZones::RemoveZones(services, paths, names, [&](const QString& name) {
        return shell_ != nullptr ? shell_->RemoveZone(name)
                                 : mduTimeZones::DeleteZoneFile(services, paths, name);
    });
}

void frmTimeZones::DeleteCheckedZones() {
    const QStringList names = list_.CheckedNames();
    if (names.isEmpty()) {
        Tell(u"No time zone is checked"_s);
        return;
    }
    if (Ask(mduTimeZones::DeleteQuestion(names), MsgBox::RemovalQuestion, u"Delete Selected"_s) ==
        MsgBox::Yes) {
        TellOutcome(Remove(names), u"deleted"_s);
        LoadZoneList(list_.Show);
    }
}

void frmTimeZones::ConfirmSave() {
    const QStringList names = list_.UnsavedNames();
    const QStringList removed = list_.UncheckedNames();
    if (names.isEmpty() && removed.isEmpty()) {
        return;
    }
    const int flags = removed.isEmpty() ? MsgBox::YesNoQuestion : MsgBox::RemovalQuestion;
    if (Ask(mduTimeZones::SaveQuestion(names, removed), flags, u"Save Seleted Time Zones"_s) !=
        MsgBox::Yes) {
        return;
    }
    if (!names.isEmpty()) {
        SaveCheckedZones();
    }
    if (!removed.isEmpty()) {
        TellOutcome(Remove(removed), u"removed"_s);
    }
}

void frmTimeZones::ShowZoneDetails(int position) {
    if (position < 0) {
        return;
    }
    const QString tag = list_.Tag(list_[position]);
    const QRect row = lsvTimeZones_->visualRect(model_.index(position, 0));
    QWidget* owner = lsvTimeZones_->viewport();
    balloon_.SetPopupOnDemand(true);
    balloon_.BalloonInfoSetup(owner, u"Timezone Info"_s, tag, PaleYellow);
    balloon_.Show(row.x(), row.y(), QSize(std::min(row.width(), owner->width()), row.height()));
    if (shell_ == nullptr) {
        return;
    }
    if (mduUILib::YesNoToBool(shell_->Setting(u"Speak Time Zone Details"_s))) {
        shell_->PurgeSpeech();
        shell_->SpeakMessage(tag);
    }
}

void frmTimeZones::LaunchRow(int position) {
    if (shell_ != nullptr && MakeFileOf(position)) {
        shell_->LaunchTempolark(list_[position].Name);
    }
}

void frmTimeZones::OpenCurrent() {
    const int position = CurrentPosition();
    if (position >= 0) {
        list_[position].Checked = true;
        LaunchRow(position);
        model_.ChecksChanged();
        ShowRows();
    }
}

void frmTimeZones::Launch() {
    if (CurrentPosition() >= 0) {
        LaunchRow(CurrentPosition());
        return;
    }
    for (int position = 0; position < list_.Count(); ++position) {
        if (list_[position].Checked) {
            LaunchRow(position);
        }
    }
}

void frmTimeZones::closeEvent(QCloseEvent* event) {
    balloon_.Destroy();
    ConfirmSave();
    QWidget::closeEvent(event);
}

void frmTimeZones::Edit(EditAction action) {
    if (action == EditAction::Find) {
        txtSearch_->setFocus();
        txtSearch_->selectAll();
    }
}

void frmTimeZones::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && balloon_.Shown()) {
        balloon_.Destroy();
    } else if (event->matches(QKeySequence::Find)) {
        Edit(EditAction::Find);
    } else {
        QWidget::keyPressEvent(event);
    }
}
