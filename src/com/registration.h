#pragma once

namespace com {

enum class RegistrationScope { Machine, User };

/// For the whole machine when this process may, for its user otherwise.
RegistrationScope AllowedScope();

/// Enters the module's classes and its type library; throws where the registry refuses.
void Register(RegistrationScope scope);

/// Takes everything out that Register enters; what is not there is no failure.
void Unregister(RegistrationScope scope);

} // namespace com
