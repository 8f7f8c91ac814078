#pragma once

class QLineEdit;
class QString;

/// Marks a field whose text cannot be used: an edge in the colour of errors, and why in its tooltip and for screen readers.
/// An empty fault takes the mark away.
void markField(QLineEdit *field, const QString &fault);
