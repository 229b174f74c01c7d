#include "base/program_start.h"

#include <fcntl.h>
#include <unistd.h>

namespace nocturo {

namespace {

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

ProgramStart::ProgramStart() {
    posix_spawn_file_actions_init(&actions_);
    posix_spawnattr_init(&attributes_);
}

ProgramStart::~ProgramStart() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
}

void ProgramStart::set(short flag) {
    flags_ = static_cast<short>(flags_ | flag);
    posix_spawnattr_setflags(&attributes_, flags_);
}

void ProgramStart::makeSession() {
    set(POSIX_SPAWN_SETSID);
}

void ProgramStart::blockSignals(const sigset_t& blocked) {
    posix_spawnattr_setsigmask(&attributes_, &blocked);
    set(POSIX_SPAWN_SETSIGMASK);
}

void ProgramStart::resetSignals() {
    sigset_t all;
    sigfillset(&all);
    posix_spawnattr_setsigdefault(&attributes_, &all);
    set(POSIX_SPAWN_SETSIGDEF);
}

void ProgramStart::closeOff(int descriptor) {
    posix_spawn_file_actions_addopen(&actions_, descriptor, "/dev/null", O_RDWR, 0);
}

void ProgramStart::give(int descriptor, int as) {
    posix_spawn_file_actions_adddup2(&actions_, descriptor, as);
}

void ProgramStart::closeFrom(int descriptor) {
    posix_spawn_file_actions_addclosefrom_np(&actions_, descriptor);
}

Result<pid_t> ProgramStart::start(std::vector<std::string> words,
                                  std::optional<std::vector<std::string>> environment) {
    pid_t process = -1;
    const int error = posix_spawnp(&process, words.front().c_str(), &actions_, &attributes_,
                                   pointersTo(words).data(),
                                   environment ? pointersTo(*environment).data() : environ);
    if (error != 0) {
        return failedWith(error);
    }
    return process;
}

} // namespace nocturo
