#include "model/io_data_file.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "model/field_scan.h"
#include "platform/base/paths.h"
#include "platform/base/resources.h"
#include "platform/base/text.h"
#include "resources/ids.h"

namespace pvw {

CIODataFile::Reading::Reading(CIODataFile& file) : m_file(file), m_watch(&file) {
  ++m_file.m_readings;
  m_file.TextForLookup();
}

CIODataFile::Reading::~Reading() {
  if (m_watch.Stands() && --m_file.m_readings == 0) m_file.m_bHeld = false;
}

CIODataFile::~CIODataFile() {
  Watch<CIODataFile>::OnGone(this);
}

void CIODataFile::Open(std::string_view path, std::uint32_t baseAddress) {
  Close();
  m_path = path;
  m_bOpen = true;
  const Reading reading(*this);
  const std::string modules = platform::LoadString(IDS_KEY_MODULES);
  m_fileBase = GetNumber(modules, platform::LoadString(IDS_KEY_BASE_ADDRESS), 0);
  m_effectiveBase = baseAddress != 0 ? baseAddress : m_fileBase;
  m_version = GetNumber(modules, platform::LoadString(IDS_KEY_FILE_VERSION), 1);
}

void CIODataFile::Close() {
  m_bOpen = false;
  m_bHeld = false;
  m_text = {};
  m_stamp.reset();
}

void CIODataFile::HoldAgainstDisk() {
  const unsigned codePage = platform::AnsiCodePage();
  if (m_stamp && m_codePage == codePage && platform::StampNativeFile(m_nativePath) == m_stamp) return;
  m_text = {};
  m_stamp.reset();
  const std::optional<std::string> native = platform::ToNativePath(m_path);
  if (!native) return;
  try {
    std::optional<platform::FileContents> contents = platform::ReadNativeFile(*native);
    if (!contents) return;
    m_text = ProfileText(std::move(contents->bytes));
    m_nativePath = *native;
    m_codePage = codePage;
    if (contents->settled) m_stamp = contents->stamp;
  } catch (const std::bad_alloc&) {
    // A file too large for the memory at hand is one that can't be read.
  }
}

const ProfileText* CIODataFile::TextForLookup() {
  if (!m_bOpen) return nullptr;
  if (!m_bHeld) HoldAgainstDisk();
  m_bHeld = m_readings > 0;
  return &m_text;
}

std::string CIODataFile::GetValue(std::string_view section, std::string_view key,
                                  std::string_view defaultText) {
  const ProfileText* text = TextForLookup();
  const std::string_view value = text != nullptr ? text->Value(section, key) : std::string_view();
  return std::string(value.empty() ? defaultText.substr(0, kMaxProfileValue) : value);
}

std::uint32_t CIODataFile::GetNumber(std::string_view section, std::string_view key,
                                     std::uint32_t defaultValue) {
  const ProfileText* text = TextForLookup();
  return text != nullptr ? ParseNumber(text->Value(section, key)).value_or(defaultValue) : defaultValue;
}

std::size_t CIODataFile::GetKeys(std::string_view section, std::span<char> buffer) {
  std::fill_n(buffer.begin(), std::min<std::size_t>(buffer.size(), 2), '\0');
  const ProfileText* text = TextForLookup();
  if (text == nullptr || buffer.size() < 3) return 0;

  const ProfileText::Section* found = text->FindSection(section);
  const std::size_t keys = found != nullptr ? text->KeyCount(*found) : 0;
  std::size_t used = 0;
  for (std::size_t i = 0; i < keys; ++i) {
    const std::string_view key = text->KeyAt(*found, i);
    // Room for this key, its terminator and the list's.
    if (key.size() + 2 > buffer.size() - used) {
      const std::size_t end = buffer.size() - 2;
      if (used < end) std::memcpy(buffer.data() + used, key.data(), std::min(key.size(), end - used));
      buffer[end] = buffer[end + 1] = '\0';
      return end;
    }
    std::memcpy(buffer.data() + used, key.data(), key.size());
    used += key.size();
    buffer[used++] = '\0';
  }
  buffer[used] = '\0';
  return used;
}

}  // namespace pvw
