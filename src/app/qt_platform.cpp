#include "app/qt_platform.h"

#include "shared/ui/qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace wayscribe {

namespace {
// Long work lets the window breathe at most this often, so that it stays
// alive without the event processing costing more than the work.
constexpr qint64 kEventIntervalMs = 20;
} // namespace

QString qtFileFilter(const std::string &filter)
{
    const std::size_t bar = filter.find('|');
    return toQString(bar == std::string::npos ? filter : filter.substr(0, bar));
}

QWidget *QtPlatform::parent() const
{
    return host_ ? host_->dialogParent() : nullptr;
}

Answer QtPlatform::message(const std::string &text, const std::string &title, MessageButtons buttons,
                           MessageIcon icon, const std::string &detail)
{
    QMessageBox box(parent());
    box.setWindowTitle(toQString(title));
    box.setText(toQString(text));
    if (!detail.empty())
        box.setInformativeText(toQString(detail));
    switch (icon) {
    case MessageIcon::Information:
        box.setIcon(QMessageBox::Information);
        break;
    case MessageIcon::Question:
        box.setIcon(QMessageBox::Question);
        break;
    case MessageIcon::Exclamation:
        box.setIcon(QMessageBox::Warning);
        break;
    case MessageIcon::Critical:
        box.setIcon(QMessageBox::Critical);
        break;
    case MessageIcon::None:
        break;
    }
    switch (buttons) {
    case MessageButtons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        break;
    case MessageButtons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        break;
    case MessageButtons::YesNoCancel:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        break;
    }
    // A wait cursor must not hide that the program asks something.
    const bool waiting = waitDepth_ > 0;
    if (waiting)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int pressed = box.exec();
    if (waiting)
        QApplication::restoreOverrideCursor();
    switch (pressed) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return buttons == MessageButtons::Ok ? Answer::Ok : Answer::Cancel;
    }
}

std::string QtPlatform::inputBox(const std::string &prompt, const std::string &title,
                                 const std::string &initial)
{
    bool ok = false;
    const QString text = QInputDialog::getText(parent(), toQString(title), toQString(prompt),
                                               QLineEdit::Normal, toQString(initial), &ok);
    return ok ? fromQString(text) : std::string();
}

std::string QtPlatform::chooseOpenFile(const FileDialogRequest &request)
{
    return fromQString(QFileDialog::getOpenFileName(parent(), toQString(request.title),
                                                    toQString(request.startFolder + request.initialName),
                                                    qtFileFilter(request.filter)));
}

std::string QtPlatform::chooseSaveFile(const FileDialogRequest &request)
{
    // The program asks its own overwrite question.
    return fromQString(QFileDialog::getSaveFileName(
        parent(), toQString(request.title), toQString(request.startFolder + request.initialName),
        qtFileFilter(request.filter), nullptr, QFileDialog::DontConfirmOverwrite));
}

std::string QtPlatform::chooseFolder(const std::string &title, const std::string &startFolder)
{
    return fromQString(QFileDialog::getExistingDirectory(parent(), toQString(title), toQString(startFolder)));
}

void QtPlatform::setClipboardText(const std::string &text)
{
    QGuiApplication::clipboard()->clear();
    QGuiApplication::clipboard()->setText(toQString(text));
}

void QtPlatform::setStatus(const std::string &text)
{
    if (host_)
        host_->showStatus(text);
}

void QtPlatform::setWaitCursor(bool waiting)
{
    if (waiting) {
        if (waitDepth_++ == 0)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (waitDepth_ > 0) {
        if (--waitDepth_ == 0)
            QApplication::restoreOverrideCursor();
    }
}

void QtPlatform::processEvents()
{
    if (sinceEvents_.isValid() && sinceEvents_.elapsed() < kEventIntervalMs)
        return;
    // The window repaints and shows its progress; clicks and keys wait until
    // the job is done, so that nothing can start another job in the middle.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    sinceEvents_.start();
}

void QtPlatform::redrawMap()
{
    if (host_)
        host_->redrawMap();
}

void QtPlatform::mapLockChanged()
{
    if (host_)
        host_->syncLockControls();
}

} // namespace wayscribe
