// A host for the end-to-end tests: real open and USBDEVFS_CONTROL on the real paths. Reads one
// command a line from its input and answers each with one line.

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Words = std::istringstream;

std::string ErrorText() { return strerrorname_np(errno); }

int OpenNode(const std::string &path) { return open(path.c_str(), O_RDWR | O_CLOEXEC); }

unsigned NextNumber(Words &words, int base) {
  std::string word;
  words >> word;
  return static_cast<unsigned>(std::strtoul(word.c_str(), nullptr, base));
}

std::string HexText(const std::vector<unsigned char> &bytes) {
  std::string text;
  for (const unsigned char byte : bytes) {
    char hex[4];
    std::snprintf(hex, sizeof hex, " %02x", static_cast<unsigned>(byte));
    text += hex;
  }
  return text;
}

// Units on the bus as "1-1=001/002", in the order of their names.
std::string List(Words &) {
  std::vector<std::string> units;
  for (const auto &entry : std::filesystem::directory_iterator("/sys/bus/usb/devices")) {
    const std::string name = entry.path().filename();
    if (name.find(':') != std::string::npos) continue;
    std::ifstream uevent(entry.path() / "uevent");
    for (std::string line; std::getline(uevent, line);) {
      if (line.starts_with("DEVNAME=bus/usb/")) units.push_back(name + '=' + line.substr(16));
    }
  }
  std::sort(units.begin(), units.end());
  std::string text;
  for (const std::string &unit : units) text += (text.empty() ? "" : " ") + unit;
  return text;
}

// cat PATH: the file, with / for each end of line.
std::string Cat(Words &words) {
  std::string path;
  words >> path;
  std::ifstream file(path);
  if (!file) return ErrorText();
  std::stringstream contents;
  contents << file.rdbuf();
  std::string text = contents.str();
  std::replace(text.begin(), text.end(), '\n', '/');
  return text;
}

std::string StatNode(Words &words) {
  std::string path;
  words >> path;
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return ErrorText();
  return (S_ISCHR(status.st_mode) ? "character " : "other ") +
         std::to_string(major(status.st_rdev)) + ':' + std::to_string(minor(status.st_rdev));
}

std::string OpenCommand(Words &words) {
  std::string path;
  words >> path;
  const int descriptor = OpenNode(path);
  return descriptor < 0 ? ErrorText() : std::to_string(descriptor);
}

// open-often COUNT PATH: how many opens of COUNT failed.
std::string OpenOften(Words &words) {
  const unsigned count = NextNumber(words, 10);
  std::string path;
  words >> path;
  unsigned failed = 0;
  for (unsigned round = 0; round < count; ++round) {
    const int descriptor = OpenNode(path);
    if (descriptor < 0) {
      ++failed;
    } else {
      close(descriptor);
    }
  }
  return std::to_string(failed);
}

std::string CloseCommand(Words &words) {
  const int descriptor = static_cast<int>(NextNumber(words, 10));
  return close(descriptor) == 0 ? "closed" : ErrorText();
}

// control DESCRIPTOR TYPE REQUEST VALUE INDEX LENGTH TIMEOUT: the result and the whole buffer,
// which held ee bytes before.
std::string Control(Words &words) {
  const int descriptor = static_cast<int>(NextNumber(words, 10));
  usbdevfs_ctrltransfer transfer{};
  transfer.bRequestType = static_cast<__u8>(NextNumber(words, 16));
  transfer.bRequest = static_cast<__u8>(NextNumber(words, 16));
  transfer.wValue = static_cast<__u16>(NextNumber(words, 16));
  transfer.wIndex = static_cast<__u16>(NextNumber(words, 16));
  transfer.wLength = static_cast<__u16>(NextNumber(words, 10));
  transfer.timeout = NextNumber(words, 10);
  std::vector<unsigned char> buffer(transfer.wLength, 0xEE);
  transfer.data = buffer.data();
  const int result = ioctl(descriptor, USBDEVFS_CONTROL, &transfer);
  return (result < 0 ? ErrorText() : std::to_string(result)) + HexText(buffer);
}

// other-ioctl DESCRIPTOR: an ioctl that is not a request to the unit.
std::string OtherIoctl(Words &words) {
  int configuration = 1;
  const int descriptor = static_cast<int>(NextNumber(words, 10));
  const int result = ioctl(descriptor, USBDEVFS_SETCONFIGURATION, &configuration);
  return result < 0 ? ErrorText() : std::to_string(result);
}

bool ReadsSelectors(const std::string &path) {
  const int descriptor = OpenNode(path);
  if (descriptor < 0) return false;
  unsigned char bytes[5] = {};
  usbdevfs_ctrltransfer transfer{0xC0, 0, 0, 0x8002, sizeof bytes, 5000, bytes};
  const int result = ioctl(descriptor, USBDEVFS_CONTROL, &transfer);
  close(descriptor);
  return result == 5 && bytes[1] == 6;
}

// threads THREADS ROUNDS PATH...: how many reads of all succeeded, each with its own open.
std::string Threads(Words &words) {
  const unsigned count = NextNumber(words, 10);
  const unsigned rounds = NextNumber(words, 10);
  std::vector<std::string> paths;
  for (std::string path; words >> path;) paths.push_back(path);
  std::atomic<unsigned> good{0};
  std::vector<std::thread> readers;
  for (unsigned number = 0; number < count; ++number) {
    readers.emplace_back([&, number] {
      for (unsigned round = 0; round < rounds; ++round) {
        if (ReadsSelectors(paths[(number + round) % paths.size()])) ++good;
      }
    });
  }
  for (std::thread &reader : readers) reader.join();
  return std::to_string(good);
}

// Gives up every privilege of root but its name.
std::string DropCapabilities(Words &) {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct none[2] = {};
  return syscall(SYS_capset, &header, none) == 0 ? "dropped" : ErrorText();
}

// child COMMAND...: runs the command in a child that this program starts anew.
std::string Child(Words &words) {
  std::string rest;
  std::getline(words >> std::ws, rest);
  int ends[2];
  if (pipe(ends) != 0) return ErrorText();
  const pid_t process = fork();
  if (process == 0) {
    dup2(ends[1], STDOUT_FILENO);
    execl("/proc/self/exe", "usb-client", rest.c_str(), nullptr);
    _exit(127);
  }
  close(ends[1]);
  std::string answer;
  char buffer[256];
  for (ssize_t count; (count = read(ends[0], buffer, sizeof buffer)) > 0;) {
    answer.append(buffer, static_cast<std::size_t>(count));
  }
  close(ends[0]);
  waitpid(process, nullptr, 0);
  if (!answer.empty()) answer.pop_back();
  return answer;
}

std::string EnvironmentVariable(Words &words) {
  std::string name;
  words >> name;
  const char *value = std::getenv(name.c_str());
  return value != nullptr ? value : "";
}

std::string Leave(Words &words) { std::_Exit(static_cast<int>(NextNumber(words, 10))); }

struct Command {
  const char *word;
  std::string (*run)(Words &);
};

constexpr Command kCommands[] = {
    {"list", List},
    {"cat", Cat},
    {"stat", StatNode},
    {"open", OpenCommand},
    {"open-often", OpenOften},
    {"close", CloseCommand},
    {"control", Control},
    {"other-ioctl", OtherIoctl},
    {"threads", Threads},
    {"drop-capabilities", DropCapabilities},
    {"child", Child},
    {"variable", EnvironmentVariable},
    {"exit", Leave},
};

std::string Run(const std::string &line) {
  Words words(line);
  std::string first;
  words >> first;
  for (const Command &command : kCommands) {
    if (first == command.word) return command.run(words);
  }
  return "unknown command " + first;
}

}  // namespace

int main(int argc, char **argv) {
  if (argc > 1) {
    std::cout << Run(argv[1]) << std::endl;
    return 0;
  }
  for (std::string line; std::getline(std::cin, line);) std::cout << Run(line) << std::endl;
  return 0;
}
