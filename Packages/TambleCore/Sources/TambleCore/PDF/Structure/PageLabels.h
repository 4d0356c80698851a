#pragma once

#include <TambleCore/PDF/PDFJobSettings.h>
#include <TambleCore/PDF/Structure/Document.h>

#include <span>

namespace tamble::pdf {

/// The entries of a table of page labels: each the index of a page and the label from there on.
using PageLabels = std::vector<QPDFObjectHandle>;

/// Whether the document names its pages other than by their number.
bool hasLabels(const Document& document);

/// A label that counts on from this number.
QPDFObjectHandle numberLabel(int number);

/// Appends the labels of these pages of the document for a table in which they begin at `newStart`; direct
/// objects.
void appendLabels(const Document& document, std::span<const int> pages, int newStart, PageLabels& labels);

/// The labels that each page takes along into the new order; empty for a document without any.
PageLabels labelsInOrder(const Document& document, std::span<const PageEdit> edits);

/// Replaces the document's page labels; removes them for an empty list.
void setLabels(const Document& document, const PageLabels& labels);

}  // namespace tamble::pdf
