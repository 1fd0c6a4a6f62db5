// An environment variable set (or removed) for the life of the object, then put back.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

class VariableTemporaire {
public:
    VariableTemporaire(const char* nom, const char* valeur) : nom_(nom) {
        if (const char* avant = std::getenv(nom)) avant_ = avant;
        if (valeur) setenv(nom, valeur, 1);
        else unsetenv(nom);
    }
    ~VariableTemporaire() {
        if (avant_) setenv(nom_.c_str(), avant_->c_str(), 1);
        else unsetenv(nom_.c_str());
    }
    VariableTemporaire(const VariableTemporaire&) = delete;
    VariableTemporaire& operator=(const VariableTemporaire&) = delete;

private:
    std::string nom_;
    std::optional<std::string> avant_;
};
