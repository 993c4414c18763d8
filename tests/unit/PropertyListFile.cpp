#include "PropertyListFile.h"

#include <bit>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "PropertyList.h"

namespace orv {
namespace {

constexpr unsigned kReferenceSize = 4;
constexpr unsigned kOffsetSize = 4;

std::string References(const std::vector<BinaryList::Reference> &references) {
  std::string bytes;
  for (const BinaryList::Reference reference : references) {
    bytes += BigEndian(reference, kReferenceSize);
  }
  return bytes;
}

// A count below 15 stands in the marker, any other in an integer object behind it.
std::string Marker(unsigned kind, std::size_t count) {
  if (count < 15) return std::string(1, static_cast<char>(kind | count));
  return std::string(1, static_cast<char>(kind | 0x0F)) + '\x12' + BigEndian(count, 4);
}

struct CloseCommand {
  void operator()(FILE *command) const { pclose(command); }
};

}  // namespace

std::string XmlList(const std::string &entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">\n<dict>\n" +
         entries + "\n</dict>\n</plist>\n";
}

bool SetMaxLevel(const std::string &path, std::int32_t value) {
  return PropertyList::ChangeFile(path,
                                  [&](PropertyList &list) { list.SetInteger("MaxLevel", value); });
}

std::string BigEndian(std::uint64_t number, unsigned size) {
  std::string bytes(size, '\0');
  for (unsigned i = 0; i < size && i < 8; ++i) {
    bytes[size - 1 - i] = static_cast<char>(number >> (8 * i) & 0xFF);
  }
  return bytes;
}

std::string BigEndianReal(double real) { return BigEndian(std::bit_cast<std::uint64_t>(real), 8); }

BinaryList::Reference BinaryList::Add(std::string bytes) {
  objects_.push_back(std::move(bytes));
  return Next() - 1;
}

BinaryList::Reference BinaryList::AddText(std::string_view ascii) {
  return Add(Marker(0x50, ascii.size()) + std::string(ascii));
}

BinaryList::Reference BinaryList::AddInteger(std::uint64_t number, unsigned size) {
  const auto marker = static_cast<char>(0x10 | std::countr_zero(size));
  return Add(marker + BigEndian(number, size));
}

BinaryList::Reference BinaryList::AddArray(const std::vector<Reference> &members) {
  return Add(Marker(0xA0, members.size()) + References(members));
}

BinaryList::Reference BinaryList::AddDictionary(const std::vector<Reference> &keysAndValues) {
  std::vector<Reference> keys;
  std::vector<Reference> values;
  for (std::size_t i = 0; i < keysAndValues.size(); i += 2) {
    keys.push_back(keysAndValues[i]);
    values.push_back(keysAndValues[i + 1]);
  }
  return Add(Marker(0xD0, keys.size()) + References(keys) + References(values));
}

std::string BinaryList::File(Reference root) const {
  std::string file = "bplist00";
  std::string offsets;
  for (const std::string &object : objects_) {
    offsets += BigEndian(file.size(), kOffsetSize);
    file += object;
  }
  const std::size_t offsetTable = file.size();
  file += offsets + std::string(6, '\0');
  file += BigEndian(kOffsetSize, 1) + BigEndian(kReferenceSize, 1);
  return file + BigEndian(objects_.size(), 8) + BigEndian(root, 8) + BigEndian(offsetTable, 8);
}

std::string BinaryListOf(const std::string &object) {
  BinaryList list;
  const auto key = list.AddText("a");
  const auto value = list.Add(object);
  return list.File(list.AddDictionary({key, value}));
}

std::vector<std::string> ShownEntries(const std::string &path) {
  const std::string line =
      "'" PYTHON3 "' -I -S '" SHOW_PROPERTY_LIST "' '" + path + "' 2>/dev/null";
  const std::unique_ptr<FILE, CloseCommand> command(popen(line.c_str(), "re"));
  if (!command) throw std::runtime_error("cannot run " + line);
  std::vector<std::string> entries(1);
  for (int next = std::fgetc(command.get()); next != EOF; next = std::fgetc(command.get())) {
    if (next == '\n') {
      entries.emplace_back();
    } else {
      entries.back() += static_cast<char>(next);
    }
  }
  entries.pop_back();
  if (entries.empty()) entries.push_back("no XML property list with entries");
  return entries;
}

}  // namespace orv
