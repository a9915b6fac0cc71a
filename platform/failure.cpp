#include "platform/failure.h"

#include <new>

namespace vorlane {

Failure::Failure(int32_t number, std::string description, std::string source, int32_t lastDllError)
    : Number(number), Description(std::move(description)), Source(std::move(source)), LastDllError(lastDllError) {}

namespace failures {

Failure InvalidCall() {
    return {5, "Argument ou appel de procédure incorrect"};
}
Failure Overflow() {
    return {6, "Dépassement de capacité"};
}
Failure OutOfMemory() {
    return {7, "Mémoire insuffisante"};
}
Failure SubscriptOutOfRange() {
    return {9, "L'indice n'appartient pas à la sélection"};
}
Failure DivisionByZero() {
    return {11, "Division par zéro"};
}
Failure TypeMismatch() {
    return {13, "Incompatibilité de type"};
}
Failure Internal(std::string description) {
    return {51, std::move(description)};
}
Failure FileNotFound(int32_t systemError) {
    return {53, "Fichier introuvable", "Vorlane", systemError};
}
Failure FileExists(int32_t systemError) {
    return {58, "Ce fichier existe déjà", "Vorlane", systemError};
}
Failure AccessDenied(int32_t systemError) {
    return {70, "Permission refusée", "Vorlane", systemError};
}
Failure PathNotFound(int32_t systemError) {
    return {76, "Chemin d'accès introuvable", "Vorlane", systemError};
}
Failure ObjectNotSet() {
    return {91, "Variable objet non définie"};
}
Failure InvalidFormat(std::string description) {
    return {321, "Format de fichier incorrect, " + std::move(description)};
}
Failure ControlNotLoaded() {
    return {340, "L'élément du tableau de contrôles n'existe pas"};
}
Failure ControlAlreadyLoaded() {
    return {360, "L'élément du tableau de contrôles est déjà chargé"};
}
Failure InvalidProperty() {
    return {380, "Valeur de propriété incorrecte"};
}
Failure DuplicateKey() {
    return {457, "Cette clé est déjà associée à un élément de la collection"};
}
Failure InvalidPicture() {
    return {481, "Image incorrecte"};
}

}  // namespace failures

Failure CurrentFailure() {
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return failures::OutOfMemory();
    } catch (const std::exception& exception) {
        return failures::Internal(exception.what());
    } catch (...) {
        return failures::Internal("Erreur inconnue");
    }
}

void PendingError::Set(const Failure& failure) {
    Number = failure.Number;
    Description = failure.Description;
    Source = failure.Source;
    LastDllError = failure.LastDllError;
}

}  // namespace vorlane
