#pragma once

#include <csignal>
#include <sys/resource.h>

// Caps the size of any file this process writes while it lives, so a write
// fails half-way as it would on a full disk (also for root, unlike permissions).
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool isActive() const { return m_active; }

private:
    rlimit m_saved{};
    void (*m_savedHandler)(int) = SIG_DFL;
    bool m_active = false;
};
