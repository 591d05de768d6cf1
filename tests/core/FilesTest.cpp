#include "core/Files.h"
#include "core/Locations.h"
#include "core/SettingsFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrav::core
{
namespace
{

namespace fs = std::filesystem;

// A folder of its own for every test, which an unprivileged child can enter too.
class FolderTest : public testing::Test
{
protected:
    FolderTest()
    {
        std::string pattern = (fs::temp_directory_path() / "kestrav-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        folder = pattern;
        fs::permissions(folder, fs::perms(0777));
    }
    ~FolderTest() override
    {
        fs::permissions(folder, fs::perms(0700));
        fs::remove_all(folder);
    }

    fs::path put(const std::string& name, const std::string& text) const
    {
        fs::create_directories((folder / name).parent_path());
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
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            result.insert(entry.path().filename().string());
        }
        return result;
    }

    fs::path folder;
};

using FilesTest = FolderTest;

Result<void> save(const fs::path& path, const std::string& text,
                  const std::function<void(WriteStep)>& afterStep = {})
{
    return writeFileSafely(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                           afterStep);
}

// Runs `work` in a child process and returns its exit code.
int inChild(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Saves as a user whom permissions hold back; 0 when it failed with an error that names the file.
int failsWithoutPrivileges(const fs::path& path)
{
    return inChild([&] {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) {
            return 2;
        }
        const Result<void> result = save(path, "new");
        return !result && result.error().text().find(path.string()) == 0 ? 0 : 1;
    });
}

mode_t modeOf(const fs::path& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

TEST_F(FilesTest, WritesAndKeepsThePreviousFileWithItsPermissions)
{
    const fs::path path = folder / "charts.ksc";
    ASSERT_TRUE(save(path, "one"));
    EXPECT_EQ(names(), (std::set<std::string>{"charts.ksc"}));
    fs::permissions(path, fs::perms(0640));
    ASSERT_TRUE(save(path, "two"));
    ASSERT_TRUE(save(path, ""));
    EXPECT_EQ(get("charts.ksc"), "");
    EXPECT_EQ(get("charts.BAK"), "two");
    EXPECT_EQ(names(), (std::set<std::string>{"charts.BAK", "charts.ksc"}));
    EXPECT_EQ(modeOf(path), mode_t{0640});
    EXPECT_EQ(modeOf(folder / "charts.BAK"), mode_t{0640});
    EXPECT_EQ(backupPath("a.b/name"), "a.b/name.BAK");
}

TEST_F(FilesTest, ReplacesWhatALinkStandsFor)
{
    put("real/charts.dat", "old");
    fs::create_symlink("real/charts.dat", folder / "link.dat");
    ASSERT_TRUE(save(folder / "link.dat", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.dat"));
    EXPECT_EQ(get("real/charts.dat"), "new");
    EXPECT_EQ(get("real/charts.BAK"), "old");
}

TEST_F(FilesTest, MissingPermissionLeavesTheOldFile)
{
    const fs::path path = put("locked/charts.dat", "old");
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder / "locked", fs::perms(0555));
    EXPECT_EQ(failsWithoutPrivileges(path), 0);
    fs::permissions(folder / "locked", fs::perms(0777));
    fs::permissions(path, fs::perms(0444));
    EXPECT_EQ(failsWithoutPrivileges(path), 0) << "a write-protected file was replaced";
    EXPECT_EQ(get("locked/charts.dat"), "old");
    EXPECT_FALSE(fs::exists(folder / "locked/charts.BAK"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "locked"), {}), 1);
}

TEST_F(FilesTest, FullDiskLeavesTheOldFileAndItsBackup)
{
    // The limit lets the new file through in the second case, but not the copy of the old one.
    for (const auto& [oldSize, newSize] : {std::pair(10, 5000), std::pair(5000, 10)}) {
        const std::string old(std::size_t(oldSize), 'o');
        const fs::path path = put("charts.dat", old);
        put("charts.BAK", "oldest");
        const int code = inChild([&, size = std::size_t(newSize)] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{4096, 4096};
            return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && !save(path, std::string(size, 'n'))
                       ? 0
                       : 1;
        });
        EXPECT_EQ(code, 0);
        EXPECT_EQ(get("charts.dat"), old);
        EXPECT_EQ(get("charts.BAK"), "oldest");
        EXPECT_EQ(names(), (std::set<std::string>{"charts.BAK", "charts.dat"}));
    }
}

TEST_F(FilesTest, ASaveKilledAfterAnyStepLosesNothing)
{
    for (const WriteStep last :
         {WriteStep::TemporaryWritten, WriteStep::BackupKept, WriteStep::Renamed}) {
        const fs::path path = put("charts.dat", "old");
        put("charts.BAK", "oldest");
        const int code = inChild([&] {
            static_cast<void>(save(path, "new", [last](WriteStep step) {
                if (step == last) {
                    ::_exit(7);
                }
            }));
            return 0;
        });
        EXPECT_EQ(code, 7);
        EXPECT_EQ(get("charts.dat"), last == WriteStep::Renamed ? "new" : "old");
        EXPECT_EQ(get("charts.BAK"), last == WriteStep::TemporaryWritten ? "oldest" : "old");
        // What the dead process left behind does not stand in the way.
        EXPECT_TRUE(save(path, "next"));
        EXPECT_EQ(get("charts.dat"), "next");
    }
}

TEST_F(FilesTest, RefusesWhatIsNoRegularFile)
{
    EXPECT_FALSE(save(folder, "x"));
    EXPECT_FALSE(save(folder / "missing/charts.dat", "x"));
    EXPECT_FALSE(readFile(folder, 100));
    EXPECT_FALSE(readFile(folder / "missing", 100));
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(readFile(folder / "pipe", 100));
    put("block.BAK/inside", "x");
    put("block.dat", "old");
    EXPECT_FALSE(save(folder / "block.dat", "new")) << "the backup's name is a folder";
    EXPECT_EQ(get("block.dat"), "old");
}

TEST_F(FilesTest, ReadsUpToTheLimit)
{
    const fs::path path = put("file", std::string(70000, 'x'));
    EXPECT_EQ(readFile(path, 70000).value().size(), 70000U);
    EXPECT_EQ(readFile(path, 69999).error().text(), path.string() + ": larger than 69999 bytes");
    EXPECT_EQ((Error{"message", "file", 3}).text(), "file:3: message");
}

TEST_F(FilesTest, SettingsFileIsMadeWithItsFolderAndReadBack)
{
    const fs::path path = folder / "new/kestrav" / kSettingsFileName;
    EXPECT_EQ(readSettingsFile(path).value().settings, Settings{});
    StoredSettings stored;
    stored.settings.ayanamsaRow = 5;
    ASSERT_TRUE(writeSettingsFile(path, stored));
    EXPECT_EQ(readSettingsFile(path).value().settings, stored.settings);
    ASSERT_TRUE(writeSettingsFile(path, {}));
    EXPECT_TRUE(fs::exists(folder / "new/kestrav/KESTRAV6.BAK"));
    EXPECT_FALSE(readSettingsFile(folder));
    EXPECT_FALSE(writeSettingsFile(path / "below", {}));
}

// Gives the process other folders and its own ones back.
class LocationsTest : public FolderTest
{
protected:
    LocationsTest()
    {
        fs::create_directory(folder / "work");
        fs::current_path(folder / "work");
        set("HOME", (folder / "home").c_str());
        set("XDG_CONFIG_HOME", (folder / "config").c_str());
        set("XDG_DATA_HOME", (folder / "share").c_str());
    }
    ~LocationsTest() override
    {
        fs::current_path(current_);
        for (; !saved_.empty(); saved_.pop_back()) {
            const auto& [name, value] = saved_.back();
            change(name, value ? value->c_str() : nullptr);
        }
    }

    void set(const char* name, const char* value)
    {
        const char* const before = std::getenv(name);
        saved_.emplace_back(name, before ? std::optional<std::string>(before) : std::nullopt);
        change(name, value);
    }

private:
    static void change(const char* name, const char* value)
    {
        value == nullptr ? ::unsetenv(name) : ::setenv(name, value, 1);
    }

    fs::path current_ = fs::current_path();
    std::vector<std::pair<const char*, std::optional<std::string>>> saved_;
};

TEST_F(LocationsTest, FilesAreFoundInTheStatedOrder)
{
    const std::vector<fs::path> folders = searchFolders();
    ASSERT_EQ(folders.size(), 6U);
    EXPECT_EQ(folders[0], ".");
    EXPECT_EQ(folders[1], folder / "config/kestrav");
    EXPECT_EQ(folders[2], folder / "share/kestrav");
    EXPECT_EQ(folders[3], fs::read_symlink("/proc/self/exe").parent_path());
    EXPECT_EQ(folders[4], folders[3].parent_path() / "share/kestrav");

    const std::string name = "kestrav-only-a-test.nam";
    EXPECT_EQ(findFile(name), std::nullopt);
    put("share/kestrav/" + name, "");
    EXPECT_EQ(findFile(name), folder / "share/kestrav" / name);
    put("config/kestrav/" + name, "");
    EXPECT_EQ(findFile(name), folder / "config/kestrav" / name);
    put("work/" + name, "");
    EXPECT_EQ(findFile(name), name);
}

TEST_F(LocationsTest, HomeStandsInForMissingOrRelativeFolders)
{
    for (const char* const useless : {static_cast<const char*>(nullptr), "", "relative/path"}) {
        set("XDG_CONFIG_HOME", useless);
        set("XDG_DATA_HOME", useless);
        EXPECT_EQ(configFolder(), folder / "home/.config/kestrav");
        EXPECT_EQ(userDataFolder(), folder / "home/.local/share/kestrav");
    }
    EXPECT_EQ(settingsFilePath(), folder / "home/.config/kestrav/KESTRAV6.ENV");
    put("work/KESTRAV6.ENV", "");
    EXPECT_EQ(settingsFilePath(), "KESTRAV6.ENV");
    fs::remove("KESTRAV6.ENV");
    set("HOME", nullptr);
    EXPECT_TRUE(configFolder().empty());
    EXPECT_EQ(settingsFilePath(), "KESTRAV6.ENV");
    EXPECT_EQ(searchFolders().size(), 4U);
}

} // namespace
} // namespace kestrav::core
