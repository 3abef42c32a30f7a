#include "model/profile_text.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "model/field_scan.h"
#include "model/name_hash.h"
#include "platform/base/text.h"

namespace pvw {
namespace {

// A section of no more entries than this is searched entry by entry, hash by hash.
constexpr std::uint32_t kEntriesWithoutTable = 12;

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsWhiteSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view StripQuotes(std::string_view value) {
  if (value.size() < 2 || (value.front() != '\'' && value.front() != '"')) return value;
  return value.front() == value.back() ? value.substr(1, value.size() - 2) : value;
}

std::string_view SkipByteOrderMark(std::string_view text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

}  // namespace

ProfileLine ParseProfileLine(std::string_view line) {
  line = Trim(line.substr(0, line.find('\0')));
  if (line.empty() || line.front() == ';') return {};
  if (line.front() == '[') {
    const std::size_t close = platform::FindLastChar(line, ']');
    if (close != std::string_view::npos) {
      return {ProfileLine::Kind::kSection, Trim(line.substr(1, close - 1)), {}};
    }
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  const std::string_view key = Trim(line.substr(0, equals));
  if (key.empty()) return {};
  const std::string_view value = StripQuotes(Trim(line.substr(equals + 1)));
  return {ProfileLine::Kind::kEntry, key, value.substr(0, kMaxProfileValue)};
}

ProfileText::ProfileText(std::string text) : m_text(std::move(text)) {
  assert(m_text.size() <= kMaxProfileText && "places in the text are 32 bits wide");
  Reserve();
  const auto place = [this](std::string_view part) {
    return static_cast<std::uint32_t>(part.empty() ? 0 : part.data() - m_text.data());
  };
  for (std::string_view rest = SkipByteOrderMark(m_text); !rest.empty();) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const ProfileLine line = ParseProfileLine(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
    const auto size = static_cast<std::uint32_t>(line.name.size());
    if (line.kind == ProfileLine::Kind::kSection) {
      BeginSection({NameHash(line.name), place(line.name), size, static_cast<std::uint32_t>(m_entries.size()),
                    0, 0, 0});
    } else if (line.kind == ProfileLine::Kind::kEntry && !m_sections.empty()) {
      m_entries.push_back({NameHash(line.name), place(line.name), size, place(line.value),
                           static_cast<std::uint32_t>(line.value.size())});
      ++m_sections.back().entryCount;
    }
  }
  IndexSections();
}

// There are no more entries than lines and no more than equals signs. The sections of a real definition take
// more than kBytesOfSection each; a text of shorter ones grows its table as it goes.
void ProfileText::Reserve() {
  constexpr std::size_t kBytesOfSection = 32, kBlock = std::size_t{1} << 14;
  std::size_t lines = 1, equals = 0, brackets = 0;
  // Each block is counted three times while it is in the cache.
  for (std::string_view rest = m_text; !rest.empty(); rest.remove_prefix(std::min(kBlock, rest.size()))) {
    const std::string_view block = rest.substr(0, kBlock);
    const auto count = [block](char c) {
      return static_cast<std::size_t>(std::count(block.begin(), block.end(), c));
    };
    lines += count('\n');
    equals += count('=');
    brackets += count('[');
  }
  m_entries.reserve(std::min(lines, equals));
  m_sections.reserve(std::min({lines, brackets, m_text.size() / kBytesOfSection}));
  m_sectionSlots.resize(std::bit_ceil(std::max<std::size_t>(8, m_sections.capacity()) * 2));
}

void ProfileText::BeginSection(const Section& section) {
  // Slots lie anywhere in a table that may be larger than the caches: some are fetched together.
  constexpr std::size_t kAtATime = 64;
  if (m_sections.size() - m_indexed == kAtATime) IndexSections();
  m_sections.push_back(section);
}

void ProfileText::IndexSections() {
  while (m_sections.size() * 2 > m_sectionSlots.size()) GrowSectionSlots();
  const std::size_t mask = m_sectionSlots.size() - 1;
  for (std::size_t i = m_indexed; i < m_sections.size(); ++i) {
    __builtin_prefetch(&m_sectionSlots[m_sections[i].hash & mask]);
  }
  for (std::size_t i = m_indexed; i < m_sections.size(); ++i) {
    const Section section = m_sections[i];
    std::uint32_t& slot = m_sectionSlots[SectionSlot(NameOf(section), section.hash)];
    if (slot != 0) continue;
    m_sections[m_indexed] = section;
    IndexEntries(m_sections[m_indexed]);
    slot = static_cast<std::uint32_t>(++m_indexed);
  }
  m_sections.resize(m_indexed);
}

void ProfileText::IndexEntries(Section& section) {
  if (section.entryCount <= kEntriesWithoutTable) return;
  section.firstSlot = static_cast<std::uint32_t>(m_keySlots.size());
  section.slotCount = std::bit_ceil(section.entryCount * 2);
  m_keySlots.resize(m_keySlots.size() + section.slotCount);
  for (std::uint32_t i = 0; i < section.entryCount; ++i) {
    const Entry& entry = m_entries[section.firstEntry + i];
    std::uint32_t& slot = m_keySlots[KeySlot(section, KeyOf(entry), entry.hash)];
    if (slot == 0) slot = section.firstEntry + i + 1;
  }
}

void ProfileText::GrowSectionSlots() {
  m_sectionSlots.assign(m_sectionSlots.size() * 2, 0);
  const std::size_t mask = m_sectionSlots.size() - 1;
  for (std::uint32_t i = 0; i < m_indexed; ++i) {
    std::size_t slot = m_sections[i].hash & mask;
    while (m_sectionSlots[slot] != 0) slot = (slot + 1) & mask;
    m_sectionSlots[slot] = i + 1;
  }
}

std::string_view ProfileText::NameOf(const Section& section) const {
  return std::string_view(m_text).substr(section.nameBegin, section.nameSize);
}

std::string_view ProfileText::KeyOf(const Entry& entry) const {
  return std::string_view(m_text).substr(entry.keyBegin, entry.keySize);
}

std::size_t ProfileText::SectionSlot(std::string_view name, std::uint32_t hash) const {
  const std::size_t mask = m_sectionSlots.size() - 1;
  for (std::size_t slot = hash & mask;; slot = (slot + 1) & mask) {
    const std::uint32_t held = m_sectionSlots[slot];
    if (held == 0) return slot;
    const Section& section = m_sections[held - 1];
    if (section.hash == hash && NamesEqual(NameOf(section), name)) return slot;
  }
}

std::size_t ProfileText::KeySlot(const Section& section, std::string_view key, std::uint32_t hash) const {
  const std::size_t mask = section.slotCount - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const std::uint32_t held = m_keySlots[section.firstSlot + at];
    if (held == 0) return section.firstSlot + at;
    const Entry& entry = m_entries[held - 1];
    if (entry.hash == hash && NamesEqual(KeyOf(entry), key)) return section.firstSlot + at;
  }
}

bool ProfileText::Has(std::uint32_t index, std::string_view name, std::uint32_t hash) const {
  return index < m_sections.size() && m_sections[index].hash == hash &&
         NamesEqual(NameOf(m_sections[index]), name);
}

const ProfileText::Section* ProfileText::FindSection(std::string_view name) const {
  if (m_sections.empty()) return nullptr;
  if (NameOf(m_sections[m_lastSection]) == name) return &m_sections[m_lastSection];
  const std::uint32_t hash = NameHash(name);
  std::uint32_t index = m_lastSection + 1;
  if (!Has(index, name, hash)) index = m_lastSection + m_lastStep;
  if (!Has(index, name, hash)) {
    const std::uint32_t held = m_sectionSlots[SectionSlot(name, hash)];
    if (held == 0) return nullptr;
    index = held - 1;
  }
  m_lastStep = index - m_lastSection;
  m_lastSection = index;
  return &m_sections[index];
}

std::string_view ProfileText::Value(const Section& section, std::string_view key) const {
  const std::uint32_t hash = NameHash(key);
  const Entry* found = nullptr;
  if (section.slotCount != 0) {
    const std::uint32_t held = m_keySlots[KeySlot(section, key, hash)];
    if (held != 0) found = &m_entries[held - 1];
  } else {
    const Entry* end = m_entries.data() + section.firstEntry + section.entryCount;
    for (const Entry* entry = end - section.entryCount; entry != end && found == nullptr; ++entry) {
      if (entry->hash == hash && NamesEqual(KeyOf(*entry), key)) found = entry;
    }
  }
  if (found == nullptr) return {};
  return std::string_view(m_text).substr(found->valueBegin, found->valueSize);
}

std::string_view ProfileText::Value(std::string_view section, std::string_view key) const {
  const Section* found = FindSection(section);
  return found != nullptr ? Value(*found, key) : std::string_view();
}

std::string_view ProfileText::KeyAt(const Section& section, std::size_t index) const {
  return KeyOf(m_entries[section.firstEntry + index]);
}

}  // namespace pvw
