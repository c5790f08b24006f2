#pragma once

namespace com {

enum class RegistrationScope { Machine, User };

/// For the whole machine when this process may, for its user otherwise.
RegistrationScope AllowedScope();

/// Enters the module's classes and its type library; throws where the registry refuses.
void Register(RegistrationScope scope);

/// Takes everything out that Register enters, but for what the other bitness still needs; what is not there
/// is no failure. Throws where the registry refuses.
void Unregister(RegistrationScope scope);

} // namespace com
