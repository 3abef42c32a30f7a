// The text of a section-and-key file and its index.
//
// Lines end at LF; a CR before it is white space. White space is C's six characters and is trimmed from both
// ends of a line, a name, a key and a value. A zero byte ends the text of its line: what stands behind it up
// to the line's end doesn't count. A UTF-8 byte order mark at the very start is skipped.
//
//   section   [NAME]        first character `[`, a `]` behind it; the name goes up to the last `]`
//   entry     KEY = VALUE   any other line with a `=`, split at the first one; a key can't be empty
//   ignored                 any other line, and every line that begins with `;`
//
// A value that begins with ' or " and ends in the same character loses that pair, once; a single quote
// character stays. Behind that a value is cut at 2,047 bytes, even inside a character. The `]` is looked for
// by whole characters of the ANSI code page; `=`, `;`, quotes and white space are never part of a longer one.
//
// An entry belongs to the section above it; one above the first section belongs to none. The first section of
// a name counts whole and later ones not at all; in it the first entry of a key counts, even when its value
// is empty. Names and keys compare without regard to case, by whole characters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pvw {

inline constexpr std::size_t kMaxProfileValue = 2047;
inline constexpr std::size_t kMaxProfileText = std::size_t{1} << 30;

struct ProfileLine {
  enum class Kind { kIgnored, kSection, kEntry };
  Kind kind = Kind::kIgnored;
  std::string_view name;   // of the section, or the key
  std::string_view value;  // of an entry
};

// `line` is one line without its LF.
ProfileLine ParseProfileLine(std::string_view line);

// Indexes a text in one pass, in time and memory linear in its size, and answers each lookup in constant
// time. The index holds for the ANSI code page that was set when it was made.
class ProfileText {
 public:
  // One section that counts; its entries stand together, in the order of the text.
  struct Section {
    std::uint32_t hash;
    std::uint32_t nameBegin;
    std::uint32_t nameSize;
    std::uint32_t firstEntry;
    std::uint32_t entryCount;
    std::uint32_t firstSlot;  // of its own table in m_keySlots
    std::uint32_t slotCount;  // a power of two; 0 for a section of few entries, which has no table
  };

  ProfileText() = default;
  // The text must not be longer than kMaxProfileText.
  explicit ProfileText(std::string text);

  // Null when no section has the name. Good as long as the object is.
  const Section* FindSection(std::string_view name) const;
  // The value of a key; empty when the key is missing.
  std::string_view Value(const Section& section, std::string_view key) const;
  // The value of a key; empty when the section or the key is missing.
  std::string_view Value(std::string_view section, std::string_view key) const;
  // The keys of a section in order, with repeats.
  std::size_t KeyCount(const Section& section) const { return section.entryCount; }
  std::string_view KeyAt(const Section& section, std::size_t index) const;

 private:
  // Places in m_text.
  struct Entry {
    std::uint32_t hash;
    std::uint32_t keyBegin;
    std::uint32_t keySize;
    std::uint32_t valueBegin;
    std::uint32_t valueSize;
  };

  void Reserve();
  void BeginSection(const Section& section);
  // Takes the sections that were read last into the table, and drops those whose name it has.
  void IndexSections();
  void IndexEntries(Section& section);
  void GrowSectionSlots();
  std::string_view NameOf(const Section& section) const;
  bool Has(std::uint32_t index, std::string_view name, std::uint32_t hash) const;
  std::string_view KeyOf(const Entry& entry) const;
  // The slot that holds the section or key of that name, or the empty one where it belongs.
  std::size_t SectionSlot(std::string_view name, std::uint32_t hash) const;
  std::size_t KeySlot(const Section& section, std::string_view key, std::uint32_t hash) const;

  std::string m_text;
  std::vector<Section> m_sections;
  std::size_t m_indexed = 0;  // of the sections; the rest are still to be taken into the table
  std::vector<Entry> m_entries;
  // Open addressing with linear probing, at most half full: 0 is empty, else 1 plus an index.
  std::vector<std::uint32_t> m_sectionSlots;
  std::vector<std::uint32_t> m_keySlots;
  // A caller asks for key after key of one section, then for one that stands behind it, often as far behind
  // as the last one did.
  mutable std::uint32_t m_lastSection = 0;
  mutable std::uint32_t m_lastStep = 1;
};

}  // namespace pvw
