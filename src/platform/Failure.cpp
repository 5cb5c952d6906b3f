#include "platform/Failure.h"

namespace fisc {

RuntimeFailure::RuntimeFailure(int number, std::string description)
    : std::runtime_error("run-time failure " + std::to_string(number) + ": " + description),
      number_(number),
      description_(std::move(description)) {}

std::string FailureDescription(int number) {
  switch (number) {
    case err::InvalidCall: return "Invalid procedure call or argument";
    case err::Overflow: return "Overflow";
    case err::SubscriptOutOfRange: return "Subscript out of range";
    case err::TypeMismatch: return "Type mismatch";
    case err::BadFileName: return "Bad file name or number";
    case err::FileNotFound: return "File not found";
    case err::FileAlreadyOpen: return "File already open";
    case err::DeviceIO: return "Device I/O error";
    case err::FileAlreadyExists: return "File already exists";
    case err::DiskFull: return "Disk full";
    case err::InputPastEnd: return "Input past end of file";
    case err::PermissionDenied: return "Permission denied";
    case err::DiskNotReady: return "Disk not ready";
    case err::PathFileAccess: return "Path/File access error";
    case err::PathNotFound: return "Path not found";
    case err::InvalidUseOfNull: return "Invalid use of Null";
    case err::ControlArrayElement: return "Control array element doesn't exist";
    case err::InvalidPropertyValue: return "Invalid property value";
    case err::InvalidArrayIndex: return "Invalid property array index";
    case err::TextReadOnly: return "'Text' property is read-only";
    default: return "Application-defined or object-defined error";
  }
}

void Fail(int number) { throw RuntimeFailure(number, FailureDescription(number)); }

short CheckedShort(long value) {
  if (value < -32768 || value > 32767) Fail(err::Overflow);
  return static_cast<short>(value);
}

}  // namespace fisc
