# The converter does not write down the language of the document, from which a screen reader takes its voice.
require 'asciidoctor/pdf'

module DocumentLanguage
  def init_pdf doc
    super.tap { state.store.root.data[:Lang] = PDF::Core::LiteralString.new(doc.attr('lang')) }
  end
end

Asciidoctor::PDF::Converter.prepend DocumentLanguage
