#include "base/errors.h"

#include <utility>

namespace base {

QString errorText(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidCall:
            return QStringLiteral("Valeur ou appel incorrect.");
        case ErrorNumber::Overflow:
            return QStringLiteral("Dépassement de capacité : le nombre est trop grand.");
        case ErrorNumber::DivisionByZero:
            return QStringLiteral("Division par zéro.");
        case ErrorNumber::TypeMismatch:
            return QStringLiteral("Cette valeur n'est pas du type attendu.");
        case ErrorNumber::FileNotFound:
            return QStringLiteral("Fichier introuvable.");
        case ErrorNumber::DeviceError:
            return QStringLiteral("Erreur d'entrée ou de sortie sur le disque.");
        case ErrorNumber::DiskFull:
            return QStringLiteral("Le disque est plein.");
        case ErrorNumber::PermissionDenied:
            return QStringLiteral("Accès refusé.");
        case ErrorNumber::PathNotFound:
            return QStringLiteral("Dossier introuvable.");
        case ErrorNumber::ObjectNotSet:
            return QStringLiteral("Aucune base ou aucune sélection n'est ouverte.");
        case ErrorNumber::InvalidNull:
            return QStringLiteral("Ce champ ne contient aucune valeur.");
        case ErrorNumber::InvalidPicture:
            return QStringLiteral("Ce fichier n'est pas une image reconnue, ou il est endommagé.");
        case ErrorNumber::UpdateWithoutEdit:
            return QStringLiteral("Enregistrement demandé sans ajout ni modification en cours.");
        case ErrorNumber::NoCurrentRecord:
            return QStringLiteral("Aucun enregistrement en cours.");
        case ErrorNumber::DuplicateKey:
            return QStringLiteral("Cet enregistrement existe déjà : il ne peut pas être enregistré deux fois.");
        case ErrorNumber::DatabaseNotFound:
            return QStringLiteral("Base de données introuvable.");
        case ErrorNumber::ReadOnly:
            return QStringLiteral("La base de données est en lecture seule.");
        case ErrorNumber::DatabaseNotOpenable:
            return QStringLiteral("La base de données ne peut pas être ouverte.");
        case ErrorNumber::QuerySyntax:
            return QStringLiteral("Erreur de syntaxe dans la requête.");
        case ErrorNumber::UnknownTable:
            return QStringLiteral("Table introuvable dans la base de données.");
        case ErrorNumber::UnknownParameter:
            return QStringLiteral("Nom inconnu dans la requête.");
        case ErrorNumber::RecordDeleted:
            return QStringLiteral("Cet enregistrement a été supprimé.");
        case ErrorNumber::RecordLocked:
            return QStringLiteral("La base de données est occupée par un autre poste.");
        case ErrorNumber::UnknownField:
            return QStringLiteral("Champ introuvable.");
        case ErrorNumber::RequiredValue:
            return QStringLiteral("Ce champ doit contenir une valeur.");
        case ErrorNumber::EmptyText:
            return QStringLiteral("Ce champ n'accepte pas un texte vide.");
        case ErrorNumber::UnknownFormat:
            return QStringLiteral("Ce fichier n'est pas une base de données reconnue, ou il est endommagé.");
        case ErrorNumber::ObjectClosed:
            return QStringLiteral("Cette base de données a été fermée.");
        case ErrorNumber::JpegSave:
            return QStringLiteral("L'image JPEG n'a pas pu être enregistrée.");
    }
    return QStringLiteral("Erreur inattendue.");
}

QString errorText(ErrorNumber number, const QString& subject) {
    return QStringLiteral("%1 (%2).").arg(errorText(number).chopped(1), subject);
}

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, errorText(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, QString text)
    : number_(number), text_(std::move(text)), utf8_(text_.toUtf8()) {}

}  // namespace base
