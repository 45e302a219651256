# The converter does not write the language of the document, by which screen readers choose the voice.
require 'asciidoctor/pdf'

module DocumentLanguage
  def init_pdf doc
    super.tap { state.store.root.data[:Lang] = PDF::Core::LiteralString.new(doc.attr('lang')) }
  end
end

Asciidoctor::PDF::Converter.prepend DocumentLanguage
