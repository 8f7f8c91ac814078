VARYING vec2 fragTexCoord;
uniform sampler2D tex0;

void main()
{
    fragColor = TEXTURE(tex0, fragTexCoord);
}
