#pragma once
// A run-time failure of the program: the error the platform would report
// before ending the program. Routines that step over failures catch it where
// their behaviour says so; the event dispatcher ends the run with what is left.
#include <stdexcept>
#include <string>

namespace fisc {

class RuntimeFailure : public std::runtime_error {
 public:
  RuntimeFailure(int number, std::string description);
  int number() const { return number_; }
  const std::string& description() const { return description_; }

 private:
  int number_;
  std::string description_;
};

// The platform's description of a failure number ("Subscript out of range").
std::string FailureDescription(int number);

// Throws the failure with its standard description.
[[noreturn]] void Fail(int number);

// Numbers met in this program.
namespace err {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceIO = 57;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int DiskNotReady = 71;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int InvalidUseOfNull = 94;
inline constexpr int ControlArrayElement = 340;
inline constexpr int InvalidPropertyValue = 380;
inline constexpr int InvalidArrayIndex = 381;
inline constexpr int TextReadOnly = 383;
}  // namespace err

// A 16-bit counter of the program: overflows as the platform's integer does.
short CheckedShort(long value);

}  // namespace fisc
