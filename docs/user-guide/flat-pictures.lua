-- Refers to each picture by its name alone, because all pictures are copied into the folder of the page.
function Image(image)
    image.src = image.src:match("[^/]+$")
    return image
end
