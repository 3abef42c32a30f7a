// Lookups in one I/O definition file, a section-and-key text that is only read (see profile_text.h for its
// lines). Names of sections and keys compare without regard to case.
//
// Every lookup answers from the file as it is on disk at that moment. The text and its index are kept and
// held against the file's identity, size and times; a file that can't be read holds nothing until it can.
// The name is looked up anew whenever the file that it led to has changed or gone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "model/profile_text.h"
#include "model/watch.h"
#include "platform/base/files.h"

namespace pvw {

class CIODataFile {
 public:
  // While one lives, the file is held against its state on disk once, at its start, and every lookup answers
  // from that state. For operations that make many lookups. They nest; the outermost counts. The file may go
  // first.
  class Reading {
   public:
    explicit Reading(CIODataFile& file);
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading();

   private:
    CIODataFile& m_file;
    const Watch<CIODataFile> m_watch;
  };

  CIODataFile() = default;
  CIODataFile(const CIODataFile&) = delete;
  CIODataFile& operator=(const CIODataFile&) = delete;
  virtual ~CIODataFile();

  // Opens the file at a drive path, whether or not it exists: one that can't be read is open, empty, of
  // version 1 and file base 0. A base of 0 stands for the file's own.
  void Open(std::string_view path, std::uint32_t baseAddress);
  void Close();

  bool IsOpen() const { return m_bOpen; }
  const std::string& GetPath() const { return m_path; }
  // The address that the relocatable addresses of the file were written for, and the one that they move to.
  std::uint32_t GetFileBase() const { return m_fileBase; }
  std::uint32_t GetEffectiveBase() const { return m_effectiveBase; }
  // The number of `FileVersion` as it stands; every number but 2 and 3 means version 1.
  std::uint32_t GetVersion() const { return m_version; }

  // The value of a key, cut at 2,047 bytes. A closed file, a missing section, a missing key and an empty
  // value give the default, cut the same way.
  std::string GetValue(std::string_view section, std::string_view key, std::string_view defaultText = {});
  // The value as a number of automatic base, modulo 2 to the 32nd; the default when it isn't one.
  std::uint32_t GetNumber(std::string_view section, std::string_view key, std::uint32_t defaultValue);
  // Fills `buffer` with the section's keys in order, repeats included, each ended by a zero byte, the list
  // by one more. Gives the bytes used without the last terminator; 0 for a closed file. A list that doesn't
  // fit is cut, even inside a key: the result is then the buffer's size minus 2, and two zero bytes end it.
  // A buffer below 3 bytes has room for no key and gives 0.
  std::size_t GetKeys(std::string_view section, std::span<char> buffer);

 private:
  void HoldAgainstDisk();
  // The text that a lookup answers from; null while closed.
  const ProfileText* TextForLookup();

  std::string m_path;
  bool m_bOpen = false;
  std::uint32_t m_fileBase = 0;
  std::uint32_t m_effectiveBase = 0;
  std::uint32_t m_version = 1;

  ProfileText m_text;
  std::string m_nativePath;
  std::optional<platform::FileStamp> m_stamp;  // of the file that m_text holds; none: read at the next check
  unsigned m_codePage = 0;                     // that m_text was indexed in
  int m_readings = 0;
  bool m_bHeld = false;  // held against the disk since the outermost reading began
};

}  // namespace pvw
