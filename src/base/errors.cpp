#include "base/errors.h"

#include <QStringView>
#include <algorithm>
#include <array>
#include <utility>

namespace base {
namespace {

struct NumberedText {
    ErrorNumber number;
    QStringView text;
};
constexpr auto kTexts = std::to_array<NumberedText>({
    {ErrorNumber::InvalidCall, u"Valeur ou appel incorrect."},
    {ErrorNumber::Overflow, u"Dépassement de capacité : le nombre est trop grand."},
    {ErrorNumber::DivisionByZero, u"Division par zéro."},
    {ErrorNumber::TypeMismatch, u"Cette valeur n'est pas du type attendu."},
    {ErrorNumber::FileNotFound, u"Fichier introuvable."},
    {ErrorNumber::DeviceError, u"Erreur d'entrée ou de sortie sur le disque."},
    {ErrorNumber::DiskFull, u"Le disque est plein."},
    {ErrorNumber::PermissionDenied, u"Accès refusé."},
    {ErrorNumber::PathNotFound, u"Dossier introuvable."},
    {ErrorNumber::ObjectNotSet, u"Aucune base ou aucune sélection n'est ouverte."},
    {ErrorNumber::InvalidNull, u"Ce champ ne contient aucune valeur."},
    {ErrorNumber::InvalidPicture, u"Ce fichier n'est pas une image reconnue, ou il est endommagé."},
    {ErrorNumber::UpdateWithoutEdit, u"Enregistrement demandé sans ajout ni modification en cours."},
    {ErrorNumber::NoCurrentRecord, u"Aucun enregistrement en cours."},
    {ErrorNumber::DuplicateKey, u"Cet enregistrement existe déjà : il ne peut pas être enregistré deux fois."},
    {ErrorNumber::DatabaseNotFound, u"Base de données introuvable."},
    {ErrorNumber::ReadOnly, u"La base de données est en lecture seule."},
    {ErrorNumber::DatabaseNotOpenable, u"La base de données ne peut pas être ouverte."},
    {ErrorNumber::QuerySyntax, u"Erreur de syntaxe dans la requête."},
    {ErrorNumber::UnknownTable, u"Table introuvable dans la base de données."},
    {ErrorNumber::UnknownParameter, u"Nom inconnu dans la requête."},
    {ErrorNumber::RecordDeleted, u"Cet enregistrement a été supprimé."},
    {ErrorNumber::RecordLocked, u"La base de données est occupée par un autre poste."},
    {ErrorNumber::UnknownField, u"Champ introuvable."},
    {ErrorNumber::RequiredValue, u"Ce champ doit contenir une valeur."},
    {ErrorNumber::EmptyText, u"Ce champ n'accepte pas un texte vide."},
    {ErrorNumber::UnknownFormat, u"Ce fichier n'est pas une base de données reconnue, ou il est endommagé."},
    {ErrorNumber::ObjectClosed, u"Cette base de données a été fermée."},
    {ErrorNumber::JpegSave, u"L'image JPEG n'a pas pu être enregistrée."},
});

}  // namespace

QString errorText(ErrorNumber number) {
    const auto row = std::ranges::find(kTexts, number, &NumberedText::number);
    return row == kTexts.end() ? QStringLiteral("Erreur inattendue.") : row->text.toString();
}

QString errorText(ErrorNumber number, const QString& subject) {
    return QStringLiteral("%1 (%2).").arg(errorText(number).chopped(1), subject);
}

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, errorText(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, QString text)
    : number_(number), text_(std::move(text)), utf8_(text_.toUtf8()) {}

}  // namespace base
