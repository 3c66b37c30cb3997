#pragma once

namespace engine {

class Document;

/// The number of signatures in the document: those of signed form fields, and the certifications and usage
/// rights of the catalog's permissions. A signature that is referred to from several places counts once.
int countSignatures(Document& document);

} // namespace engine
