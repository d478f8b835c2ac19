#include "documents/LastFileMail.h"

#include <algorithm>
#include <vector>

#include "numbers/RuntimeError.h"

namespace norlaplan {
namespace {

/// Runs the steps of the mail one after the other, whatever became of those before, and keeps each fault
/// once.
class Steps {
  public:
    template <typename Step>
    void take(Step step) {
        try {
            step();
        } catch (const RuntimeError& error) {
            if (!met(error.number())) faults_.push_back(error);
        }
    }

    bool met(int number) const {
        return std::any_of(faults_.begin(), faults_.end(),
                           [number](const RuntimeError& fault) { return fault.number() == number; });
    }
    const std::vector<RuntimeError>& faults() const { return faults_; }

  private:
    std::vector<RuntimeError> faults_;
};

void tell(const RuntimeError& error, MessagePort& messages) {
    if (error.number() == fault::kNoSuchProgram)
        messages.show({"Unable to transfer file to MS Outlook", "Error linking to MS Outlook"});
    else
        messages.show({error.what(), std::to_string(error.number())});
}

}  // namespace

std::string mailSubject(const ProgramState& state) {
    const std::string& path = state.lastSavedFile;
    const std::size_t folder = path.find_last_of("\\/");
    return (folder == std::string::npos ? "" : path.substr(folder + 1)) + " " + state.user.userMailSuffix;
}

void mailLastFile(const ProgramState& state, MailPort& mail, MessagePort& messages) {
    if (state.lastSavedFile.empty()) {
        messages.show({"No File Available to Send", "Please Save File First", Icon::Critical});
        return;
    }
    Steps steps;
    steps.take([&] { mail.createApplication(); });
    // With no mail program there is nobody to ask for the rest.
    if (!steps.met(fault::kNoSuchProgram)) {
        steps.take([&] { mail.createItem(0); });
        steps.take([&] { mail.saveItem(); });
        steps.take([&] { mail.attach({state.lastSavedFile, 1, 2, ""}); });
        steps.take([&] { mail.setSubject(mailSubject(state)); });
        steps.take([&] { mail.display(); });
    }
    for (const RuntimeError& fault : steps.faults())
        tell(fault, messages);
}

}  // namespace norlaplan
