// An OpenID provider on a free port of the loopback address, with one native client. The first line on standard
// output is its issuer; it ends when standard input does.
import { createServer } from 'node:http';
import Provider from 'oidc-provider';

const server = createServer((request, response) => provider.callback()(request, response));
let provider;
server.listen(0, '127.0.0.1', () => {
  const issuer = `http://127.0.0.1:${server.address().port}`;
  provider = new Provider(issuer, {
    clients: [
      {
        client_id: 'client-1',
        application_type: 'native',
        token_endpoint_auth_method: 'none',
        grant_types: ['authorization_code', 'refresh_token'],
        response_types: ['code'],
        redirect_uris: ['http://127.0.0.1/done', 'urn:ietf:wg:oauth:2.0:oob'],
      },
    ],
    rotateRefreshToken: true,
  });
  console.log(issuer);
});
process.stdin.resume();
process.stdin.on('end', () => process.exit(0));
