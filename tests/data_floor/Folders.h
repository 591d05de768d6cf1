// A folder of its own for every test, and child processes that die or lack permissions.
#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrav::data
{

class FolderTest : public testing::Test
{
protected:
    FolderTest()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "kestrav-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        folder = pattern;
        std::filesystem::permissions(folder, std::filesystem::perms(0777));
    }
    ~FolderTest() override
    {
        std::filesystem::permissions(folder, std::filesystem::perms(0700));
        std::filesystem::remove_all(folder);
    }

    std::filesystem::path put(const std::string& name, const std::string& text) const
    {
        std::ofstream(folder / name, std::ios::binary) << text;
        return folder / name;
    }
    std::string get(const std::string& name) const
    {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::set<std::string> names() const
    {
        std::set<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            result.insert(entry.path().filename().string());
        }
        return result;
    }

    std::filesystem::path folder;
};

/// Runs `work` in a child process and returns its exit code, or -1 when a signal ended it.
inline int inChild(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The same as a user whom permissions hold back.
inline int withoutPrivileges(const std::function<int()>& work)
{
    return inChild([&] {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) {
            return 99;
        }
        return work();
    });
}

/// The same with room for `bytes` in every file.
inline int onFullDisk(rlim_t bytes, const std::function<int()>& work)
{
    return inChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 ? work() : 99;
    });
}

} // namespace kestrav::data
