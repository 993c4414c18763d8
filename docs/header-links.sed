# On a forge a header is a file; in the generated reference it is a page.
s|\]\([./]*include/TRX-SELVASetup/([A-Za-z-]+\.h)\)|](@ref \1)|g
