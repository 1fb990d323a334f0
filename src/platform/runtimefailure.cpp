#include "runtimefailure.h"

namespace zt {

RuntimeFailure::RuntimeFailure(int number, QString description)
    : m_number(number), m_description(std::move(description)),
      m_what(
          QStringLiteral("Run-time error '%1': %2").arg(number).arg(m_description).toStdString()) {}

RuntimeFailure RuntimeFailure::overflow() {
    return {Overflow, QStringLiteral("Overflow")};
}
RuntimeFailure RuntimeFailure::invalidProcedureCall() {
    return {InvalidProcedureCall, QStringLiteral("Invalid procedure call or argument")};
}
RuntimeFailure RuntimeFailure::invalidPropertyValue() {
    return {InvalidPropertyValue, QStringLiteral("Invalid property value")};
}
RuntimeFailure RuntimeFailure::typeMismatch() {
    return {TypeMismatch, QStringLiteral("Type mismatch")};
}
RuntimeFailure RuntimeFailure::objectNotSet() {
    return {ObjectNotSet, QStringLiteral("Object variable or With block variable not set")};
}
RuntimeFailure RuntimeFailure::fileNotFound() {
    return {FileNotFound, QStringLiteral("File not found")};
}
RuntimeFailure RuntimeFailure::pathNotFound() {
    return {PathNotFound, QStringLiteral("Path not found")};
}
RuntimeFailure RuntimeFailure::permissionDenied() {
    return {PermissionDenied, QStringLiteral("Permission denied")};
}
RuntimeFailure RuntimeFailure::cancel() {
    return {Cancel, QStringLiteral("Cancel was selected.")};
}

} // namespace zt
