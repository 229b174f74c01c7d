#pragma once

#include "base/result.h"
#include "documents/effect_document.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

inline constexpr std::string_view kEffectDocumentExtension = "nocturo";
inline constexpr std::string_view kEffectDocumentType = "org.nocturo.effect";
inline constexpr std::string_view kEffectDocumentMimeType = "application/x-nocturo-effect+plist";

/// The document at `path`, or nothing when the file cannot be read, is larger than 1 MiB, is no
/// property list or is no document. Never blocks on what is no ordinary file.
std::optional<EffectDocument> readEffectDocument(const std::filesystem::path& path);

/// Replaces the file at `path` as a whole. The problem is the system's word on why that failed;
/// then the old file, if there was one, is as it was. A link stays and its target is replaced; the
/// permissions of an existing file and whether its extension is hidden are kept. Missing
/// directories are not made.
Result<void> writeEffectDocument(const std::filesystem::path& path, const EffectDocument& document);

/// Whether people are to see the file at `path` without its extension. False where the file system
/// cannot keep that.
bool isExtensionHidden(const std::filesystem::path& path);

/// Does nothing where the file system cannot keep it or the file is not ours to mark.
void setExtensionHidden(const std::filesystem::path& path, bool hidden);

/// The name of the file at `path` as people are to see it.
std::string documentDisplayName(const std::filesystem::path& path);

} // namespace nocturo
