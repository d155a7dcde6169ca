#include "model/file_job.h"

#include "model/platform.h"
#include "model/program_state.h"

namespace wayscribe {

FileJob::FileJob(DocumentState &document, Platform &platform, std::string status, FileJobEnd end)
    : document_(document), platform_(platform), showsStatus_(!status.empty()), end_(end)
{
    if (showsStatus_)
        platform_.setStatus(status);
    platform_.setWaitCursor(true);
    document_.fileBusy = 1;
}

FileJob::~FileJob()
{
    // An exception from the window while it is handed back must not end
    // the program: the job has finished or failed by now either way.
    try {
        finish();
    } catch (...) {
    }
}

void FileJob::finish()
{
    if (!running_)
        return;
    running_ = false;
    if (end_ == FileJobEnd::StatusThenCursor) {
        if (showsStatus_)
            platform_.setStatus("");
        platform_.setWaitCursor(false);
        document_.fileBusy = 0;
        return;
    }
    document_.fileBusy = 0;
    platform_.setWaitCursor(false);
    if (showsStatus_)
        platform_.setStatus("");
}

} // namespace wayscribe
