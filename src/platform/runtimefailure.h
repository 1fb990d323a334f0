#pragma once

#include <QString>
#include <exception>
#include <string>

namespace zt {

// A failure of the run time, with the number and text the user sees in its box.
// Handlers that have a failure path catch it and end silently; anything that
// reaches the guard ends the program.
class RuntimeFailure : public std::exception {
public:
    enum Number : int {
        InvalidProcedureCall = 5,
        Overflow = 6,
        TypeMismatch = 13,
        FileNotFound = 53,
        BadFileNameOrNumber = 52,
        PermissionDenied = 70,
        PathNotFound = 76,
        ObjectNotSet = 91,
        InvalidPropertyValue = 380,
        Cancel = 32755,
    };

    RuntimeFailure(int number, QString description);

    int number() const { return m_number; }
    const QString& description() const { return m_description; }
    const char* what() const noexcept override { return m_what.c_str(); }

    static RuntimeFailure overflow();
    static RuntimeFailure invalidProcedureCall();
    static RuntimeFailure invalidPropertyValue();
    static RuntimeFailure typeMismatch();
    static RuntimeFailure objectNotSet();
    static RuntimeFailure fileNotFound();
    static RuntimeFailure pathNotFound();
    static RuntimeFailure permissionDenied();
    static RuntimeFailure cancel();

private:
    int m_number;
    QString m_description;
    std::string m_what;
};

} // namespace zt
