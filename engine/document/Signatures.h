#pragma once

namespace engine {

class Document;

/// The number of signatures in the document: the values of signature fields, those of other fields that have a
/// /ByteRange, and the certifications and usage rights of the catalog's permissions. A signature that is
/// referred to from several places counts once.
int countSignatures(Document& document);

/// True when the catalog's permissions name a certification. None allows the catalog to be changed.
bool isCertified(Document& document);

} // namespace engine
